// Reads damaged files of every kind. The same steps and seed give the same files on every machine; without a seed every
// day has its own.
//   fuzz_lauf [steps per kind] [seed] [kind]
//   fuzz_lauf <kind> <file>...         reads these files again

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>

#include "tests/fuzz/dateiarten.h"
#include "tests/fuzz/veraenderung.h"

namespace tarvel::test {
namespace {

unsigned saat_des_tages() {
    using namespace std::chrono;
    return static_cast<unsigned>(floor<days>(system_clock::now()).time_since_epoch().count());
}

bool art_laufen(werkbank& bank, const std::string& name, const dateiart& art, unsigned schritte, unsigned saat) {
    std::string bytes;
    unsigned schritt = 0;
    unsigned angenommen = 0;
    try {
        for (const std::string& gute : art.gute) {
            bytes = gute;
            fordern(art.lesen(bank, bytes), "a good file is refused");
        }
        for (; schritt < schritte; ++schritt) {
            zufall z(saat * 0x100000001B3U + schritt);  // a step stays the same whatever the steps before it took
            const std::string& gute = art.gute[unter(z, art.gute.size())];
            bytes = veraendert(gute, art.gute, z);
            angenommen += art.lesen(bank, bytes) ? 1 : 0;
        }
    } catch (const std::exception& fehler) {
        const std::string datei = "fuzz-" + name + "-" + std::to_string(schritt);
        std::ofstream(datei, std::ios::binary) << bytes;
        std::printf("%s: %s, bytes in %s\n", name.c_str(), fehler.what(), datei.c_str());
        return false;
    }
    std::printf("%-16s %10u steps, %u accepted\n", name.c_str(), schritte, angenommen);
    std::fflush(stdout);
    return true;
}

bool ausfuehren(const std::vector<std::string>& worte) {
    werkbank bank;
    // A sanitizer ends the process at once; what it was reading then still lies there.
    std::printf("Files lie in %s\n", bank.t.maschine.ordner().string().c_str());
    std::fflush(stdout);
    const auto zahl = [&](std::size_t platz, unsigned sonst) {
        return worte.size() > platz ? static_cast<unsigned>(std::strtoul(worte[platz].c_str(), nullptr, 10)) : sonst;
    };
    const std::map<std::string, dateiart> arten = dateiarten(bank);
    if (!worte.empty() && arten.contains(worte[0])) {
        for (std::size_t i = 1; i < worte.size(); ++i) {
            std::ifstream datei(worte[i], std::ios::binary);
            const bool angenommen = arten.at(worte[0]).lesen(bank, {std::istreambuf_iterator<char>(datei), {}});
            std::printf("%s: %s\n", worte[i].c_str(), angenommen ? "accepted" : "not accepted");
        }
        return true;  // what is wrong ends the process with its reason
    }
    const unsigned saat = zahl(1, saat_des_tages());
    std::printf("Seed %u\n", saat);
    std::fflush(stdout);
    bool gut = true;
    bool gelaufen = false;
    for (const auto& [name, art] : arten) {
        if (worte.size() < 3 || name == worte[2]) {
            gut = art_laufen(bank, name, art, zahl(0, 10000) / art.dauert, saat) && gut;
            gelaufen = true;
        }
    }
    return gut && gelaufen;
}

}  // namespace
}  // namespace tarvel::test

int main(int argc, char** argv) {
    return tarvel::test::ausfuehren({argv + 1, argv + argc}) ? 0 : 1;
}

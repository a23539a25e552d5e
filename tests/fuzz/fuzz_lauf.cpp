// Reads damaged files of every kind. The same steps and seed give the same files on every machine.
//   fuzz_lauf [steps per kind] [seed] [kind]
//   fuzz_lauf <kind> <file>...         reads these files again

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/fuzz/dateiarten.h"
#include "tests/fuzz/veraenderung.h"

namespace tarvel::test {
namespace {

bool versuchen(werkbank& bank, const dateiart& art, const std::string& bytes, bool& angenommen) {
    try {
        angenommen = art.lesen(bank, bytes);
        return true;
    } catch (const std::exception& fehler) {
        std::printf("%s: %s\n", art.name.c_str(), fehler.what());
        return false;
    }
}

/// Each step has a seed of its own, so that it stays the same whatever the steps before it took.
std::string bytes_des_schritts(const dateiart& art, std::uint64_t saat, std::uint64_t schritt) {
    zufall z(saat * 0x100000001B3U + schritt);
    return veraendert(art.gute[z.unter(art.gute.size())], art.gute, z);
}

bool art_laufen(werkbank& bank, const dateiart& art, std::uint64_t schritte, std::uint64_t saat) {
    for (const std::string& gut : art.gute) {
        bool angenommen = false;
        if (!versuchen(bank, art, gut, angenommen) || !angenommen) {
            std::printf("%s: a good file is refused\n", art.name.c_str());
            return false;
        }
    }
    const auto beginn = std::chrono::steady_clock::now();
    std::uint64_t gesamt = 0;
    for (std::uint64_t schritt = 0; schritt < schritte; ++schritt) {
        const std::string bytes = bytes_des_schritts(art, saat, schritt);
        bool angenommen = false;
        if (!versuchen(bank, art, bytes, angenommen)) {
            const std::string name = "fuzz-" + art.name + "-" + std::to_string(schritt);
            std::ofstream(name, std::ios::binary) << bytes;
            std::printf("%s: step %llu, bytes in %s\n", art.name.c_str(), static_cast<unsigned long long>(schritt),
                        name.c_str());
            return false;
        }
        gesamt += angenommen ? 1 : 0;
    }
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
    std::printf("%-16s %10llu steps %8.1f s %6.1f %% accepted\n", art.name.c_str(),
                static_cast<unsigned long long>(schritte), dauer.count(),
                100.0 * static_cast<double>(gesamt) / static_cast<double>(schritte == 0 ? 1 : schritte));
    std::fflush(stdout);
    return true;
}

bool dateien_lesen(werkbank& bank, const dateiart& art, int anzahl, char** namen) {
    bool gut = true;
    for (int i = 0; i < anzahl; ++i) {
        std::ifstream datei(namen[i], std::ios::binary);
        bool angenommen = false;
        gut = versuchen(bank, art, {std::istreambuf_iterator<char>(datei), {}}, angenommen) && gut;
        std::printf("%s: %s\n", namen[i], angenommen ? "accepted" : "not accepted");
    }
    return gut;
}

int ausfuehren(int argc, char** argv) {
    werkbank bank;
    // A sanitizer ends the process at once; what it was reading then still lies there.
    std::printf("Files lie in %s\n", bank.ordner().string().c_str());
    std::fflush(stdout);
    const std::vector<dateiart> arten = dateiarten(bank);
    for (const dateiart& art : arten) {
        if (argc > 2 && art.name == argv[1]) {
            return dateien_lesen(bank, art, argc - 2, argv + 2) ? 0 : 1;
        }
    }
    const std::uint64_t schritte = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 10000;
    const std::uint64_t saat = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    const std::string nur = argc > 3 ? argv[3] : "";
    std::size_t gelaufen = 0;
    bool gut = true;
    for (const dateiart& art : arten) {
        if (nur.empty() || art.name == nur) {
            ++gelaufen;
            gut = art_laufen(bank, art, schritte, saat) && gut;
        }
    }
    if (gelaufen == 0) {
        std::printf("%s is no kind of file\n", nur.c_str());
    }
    return gut && gelaufen > 0 ? 0 : 1;
}

}  // namespace
}  // namespace tarvel::test

int main(int argc, char** argv) {
    return tarvel::test::ausfuehren(argc, argv);
}

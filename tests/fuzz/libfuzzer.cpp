// The frame around one kind of file for libFuzzer. The program's name says which: fuzz_<kind>.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/fuzz/dateiarten.h"
#include "tests/fuzz/veraenderung.h"

namespace tarvel::test {
namespace {

werkbank& bank() {
    static werkbank eine;
    return eine;
}

dateiart& art() {
    static dateiart eine;
    return eine;
}

void art_waehlen(const char* programm) {
    const std::string name = std::filesystem::path(programm).stem().string();
    for (const dateiart& eine : dateiarten(bank())) {
        if (name == "fuzz_" + eine.name) {
            art() = eine;
            return;
        }
    }
    std::fprintf(stderr, "%s is no kind of file\n", name.c_str());
    std::exit(2);
}

}  // namespace
}  // namespace tarvel::test

extern "C" {

std::size_t LLVMFuzzerMutate(std::uint8_t* daten, std::size_t groesse, std::size_t max);

int LLVMFuzzerInitialize(int* argc, char*** argv) {
    tarvel::test::art_waehlen((*argv)[0]);
    // Settings are longer than what libFuzzer takes for a file; what the caller gives counts more.
    static std::string laenge = "-max_len=" + std::to_string(tarvel::test::bytes_max);
    static std::vector<char*> neu(*argv, *argv + *argc);
    neu.insert(neu.begin() + 1, laenge.data());
    *argc = static_cast<int>(neu.size());
    neu.push_back(nullptr);
    *argv = neu.data();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    // What it throws ends the process, and libFuzzer keeps the bytes.
    tarvel::test::art().lesen(tarvel::test::bank(), {reinterpret_cast<const char*>(daten), groesse});
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* daten, std::size_t groesse, std::size_t max, unsigned saat) {
    const std::vector<std::string>& gute = tarvel::test::art().gute;
    tarvel::test::zufall z(saat);
    if (groesse > 1 && z.unter(2) == 0) {
        return LLVMFuzzerMutate(daten, groesse, max);
    }
    // Without a folder of files to begin with the good ones stand in.
    const std::string bytes = tarvel::test::veraendert(
        groesse > 1 ? std::string(reinterpret_cast<const char*>(daten), groesse) : gute[z.unter(gute.size())], gute, z);
    const std::size_t anzahl = std::min(bytes.size(), max);
    std::copy_n(bytes.begin(), anzahl, daten);
    return anzahl;
}

}  // extern "C"

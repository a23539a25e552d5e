// The frame around one kind of file for libFuzzer. The program's name says which: fuzz_<kind>.

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "tests/fuzz/dateiarten.h"
#include "tests/fuzz/veraenderung.h"

namespace tarvel::test {
namespace {

werkbank& bank() {
    static werkbank eine;
    return eine;
}

/// The kind that the first call names.
const dateiart& art(const char* programm = "") {
    static const dateiart eine =
        dateiarten(bank()).at(std::filesystem::path(programm).stem().string().substr(std::size("fuzz_") - 1));
    return eine;
}

}  // namespace
}  // namespace tarvel::test

using namespace tarvel::test;

extern "C" {

std::size_t LLVMFuzzerMutate(std::uint8_t* daten, std::size_t groesse, std::size_t max);

int LLVMFuzzerInitialize(int* argc, char*** argv) {
    art((*argv)[0]);
    // Settings are longer than what libFuzzer takes for a file; what the caller gives counts more.
    static std::string laenge = "-max_len=" + std::to_string(bytes_max);
    static std::vector<char*> neu(*argv, *argv + *argc + 1);
    neu.insert(neu.begin() + 1, laenge.data());
    ++*argc;
    *argv = neu.data();
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    // What it throws ends the process, and libFuzzer keeps the bytes.
    art().lesen(bank(), {daten, daten + groesse});
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* daten, std::size_t groesse, std::size_t max, unsigned saat) {
    zufall z(saat);
    if (groesse > 1 && unter(z, 2) == 0) {
        return LLVMFuzzerMutate(daten, groesse, max);
    }
    // Without a folder of files to begin with the good ones stand in.
    const std::vector<std::string>& gute = art().gute;
    const std::string vorher = groesse > 1 ? std::string(daten, daten + groesse) : gute[unter(z, gute.size())];
    const std::string bytes = veraendert(vorher, gute, z);
    const std::size_t anzahl = std::min(bytes.size(), max);
    std::copy_n(bytes.begin(), anzahl, daten);
    return anzahl;
}

}  // extern "C"

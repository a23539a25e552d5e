#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/werkbank.h"

namespace tarvel::test {

/// Lays the bytes into the file, lets the program read it and holds what it made of it against what must be true of
/// any file. Tells whether the file was accepted; throws when something is wrong.
using leseversuch = bool (*)(werkbank&, std::string_view bytes);

/// One kind of file that the program reads.
struct dateiart {
    std::string name;
    std::vector<std::string> gute;  ///< bytes of files that are accepted, as seeds of all others
    leseversuch lesen;
};

/// All kinds. A new one gets its row here, and its name in the CMake list of the targets.
std::vector<dateiart> dateiarten(werkbank& bank);

bool einstellungen_lesen(werkbank& bank, std::string_view bytes);
bool wettkampfdatei_lesen(werkbank& bank, std::string_view bytes);
bool namensliste_lesen(werkbank& bank, std::string_view bytes);
bool trennzeichen_lesen(werkbank& bank, std::string_view bytes);
bool werbezeile_lesen(werkbank& bank, std::string_view bytes);
bool startdatei_lesen(werkbank& bank, std::string_view bytes);
bool tasten_lesen(werkbank& bank, std::string_view bytes);
bool sprache_lesen(werkbank& bank, std::string_view bytes);

}  // namespace tarvel::test

#pragma once

#include <cstdint>
#include <limits>

#include "platform/anhaengedatei.h"

namespace tarvel::test {

/// Files that have at once what is handed over. The disk fails on demand.
class test_anhaenge_dienst final : public plattform::anhaenge_dienst {
public:
    std::unique_ptr<plattform::anhaengedatei> oeffnen(const std::filesystem::path& pfad,
                                                      std::optional<std::uintmax_t> laenge) override;

    bool ordner_schreibbar = true;
    /// So many bytes the disk still takes, of all files. The bytes that are too many are handed over but not in the
    /// file, as with a thread that writes later.
    std::uintmax_t platz = std::numeric_limits<std::uintmax_t>::max();
    int geoeffnet = 0;   ///< how often a file was opened,
    int angehaengt = 0;  ///< bytes were taken
    int gesichert = 0;   ///< and all was to be on the disk
};

}  // namespace tarvel::test

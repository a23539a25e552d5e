#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "core/protokollzeile.h"
#include "platform/anhaengedatei.h"

namespace tarvel {

/// A log that was closed, or whose program has gone, and that is to go on behind its last whole line.
class protokollfortsetzung {
public:
    static constexpr std::uintmax_t bytes_max = std::uintmax_t{512} * 1024 * 1024;

    /// None if the file cannot be read, or has not a single whole line.
    static std::optional<protokollfortsetzung> lesen(const std::filesystem::path& datei);

    /// The whole lines.
    const std::string& inhalt() const { return inhalt_; }
    /// The check sum of the last of them: what comes next is chained to it.
    std::uint16_t kette() const { return kette_; }
    /// Behind them lies more than a line that was torn as it was written: going on would cut off what may be whole.
    bool beschaedigt() const { return beschaedigt_; }

    /// Opens the file to go on there; what lies behind is cut off. Null if that cannot be.
    std::unique_ptr<plattform::anhaengedatei> oeffnen(plattform::anhaenge_dienst& dienst) const;

private:
    std::filesystem::path datei_;
    std::string inhalt_;
    std::uint16_t kette_ = protokoll_kette_anfang;
    bool beschaedigt_ = false;
};

}  // namespace tarvel

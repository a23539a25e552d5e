#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/renn_parameter.h"
#include "hardware/tastenbelegung.h"
#include "platform/kalender.h"

namespace tarvel {

/// What stands before the doings in the log of a race: all that it went by.
struct protokollkopf {
    std::string zeitpunkt;  ///< date and time of day at which the race window opened
    zeit_ms beginn = 0;     ///< reading of the clock at that moment; the times of the doings count from it
    std::vector<std::string> einstellungen;  ///< the lines of a settings file
    renn_parameter param;
    tastenbelegung belegung;
    std::string teil_von;  ///< what the race is part of, as `veranstaltung::kennung`
};

/// The lines, without the mark that makes them lines of the head.
std::vector<std::string> kopf_schreiben(const protokollkopf& kopf);
/// The head from the first lines of a log, and how many they are. None for a log of another version, or if anything
/// is missing.
struct gelesener_kopf {
    protokollkopf kopf;
    std::size_t zeilen = 0;
};
std::optional<gelesener_kopf> kopf_lesen(std::span<const std::string_view> zeilen);
/// What the race is part of, from the beginning of its log, which may end within the head. Empty if it does not say.
std::string_view teil_von_lesen(std::string_view anfang);

}  // namespace tarvel

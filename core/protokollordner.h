#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "platform/kalender.h"

/// The folder of the races' logs: one file per race, with a name that sorts by time.
namespace tarvel {

inline constexpr std::string_view protokoll_ordner = "Ergebnisse\\Protokoll";
inline constexpr std::size_t protokoll_bytes_max = std::size_t{64} * 1024 * 1024;

/// A name, without the folder, that is free: "2026-11-21 20-14-03.txt", then "2026-11-21 20-14-03_0002.txt".
std::string neuer_protokollname(const dateien& ablage, const plattform::datum_uhrzeit& jetzt);

/// The names of the logs, without the folder, the newest first; so many at most.
std::vector<std::string> protokolle_auflisten(const dateien& ablage,
                                              std::size_t anzahl = std::numeric_limits<std::size_t>::max());
/// The bytes of a log; none if it cannot be read. `bytes_max`: only its beginning, up to that, however long it is.
std::optional<std::string> protokoll_lesen(const dateien& ablage, std::string_view name,
                                           std::size_t bytes_max = protokoll_bytes_max);

/// A log that is not asked for any more, though nobody may write to it. It can still be taken up by hand.
bool protokoll_weggelegt(const dateien& ablage, std::string_view name);
void protokoll_weglegen(const dateien& ablage, const std::string& name);
/// It goes on: from here on it is asked for like any other.
void protokoll_hervorholen(const dateien& ablage, const std::string& name);

/// Deletes the logs that are older than 90 days by their names, and all but the newest 200. Any other file is left
/// alone, and so are linked folders, linked files and the log `in_gebrauch` (without the folder). After a long time
/// away, not all goes at once.
void protokolle_aufraeumen(const dateien& ablage, const plattform::datum_uhrzeit& heute, std::string_view in_gebrauch);

/// What a log says where a result was written to a file, before its name below the program folder.
inline constexpr std::string_view ergebnis_vermerk = "Ergebnis ";

/// When a race ended, as its result has it: "21.11.2026" and "20:14:03". Empty if that is not known.
struct rennende_angabe {
    std::string_view datum;
    std::string_view uhrzeit;
};

/// The newest log, by its name below the program folder, of which that file holds a result; none if there is none in
/// what is worth searching. The file may have been moved, renamed or written over with another race: a log that knows
/// the end of the race comes before one that knows the file alone.
std::optional<std::string> protokoll_zu_ergebnis(const dateien& ablage, std::string_view ergebnis,
                                                 const rennende_angabe& ende = {});

}  // namespace tarvel

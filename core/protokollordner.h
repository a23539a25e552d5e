#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "platform/kalender.h"

/// The folder of the races' logs: one file per race, with a name that sorts by time.
namespace tarvel {

inline constexpr std::string_view protokoll_ordner = "Ergebnisse\\Protokoll";

/// A name, without the folder, that is free: "2026-11-21 20-14-03.txt", then "2026-11-21 20-14-03_0002.txt".
std::string neuer_protokollname(const dateien& ablage, const plattform::datum_uhrzeit& jetzt);

/// The names of the logs, without the folder, from the newest to the oldest; so many at most.
std::vector<std::string> neueste_protokolle(const dateien& ablage, std::size_t anzahl);

/// Deletes the logs that are older than 90 days by their names, and all but the newest 200. Any other file is left
/// alone, and so are linked folders, linked files and the log `in_gebrauch` (without the folder). After a long time
/// away, not all goes at once.
void protokolle_aufraeumen(const dateien& ablage, const plattform::datum_uhrzeit& heute, std::string_view in_gebrauch);

}  // namespace tarvel

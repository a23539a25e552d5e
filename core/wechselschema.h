#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/spuren.h"

namespace tarvel {

/// The order in which drivers go from lane to lane: index 1 to 7, each a lane or `wechsel_pause`.
using wechsel_folge = std::array<int, 8>;
inline constexpr int wechsel_pause = 7;  ///< "P" in texts: the driver waits for one race
inline constexpr wechsel_folge wechsel_standard{0, 1, 6, 5, 4, 3, 2, wechsel_pause};
inline constexpr std::string_view wechsel_standard_text = "Tarvel Standard :  1 - 6 - 5 - 4 - 3 - 2";

/// One entry in the choice of schemes.
struct wechselschema {
    std::string anzeige;                 ///< name, " :  " and the marks, or what is wrong with them
    std::optional<wechsel_folge> folge;  ///< none for an invalid entry
};

/// Different marks, with or without "-" and blanks between them; lanes that are not named follow behind, and the pause.
std::optional<wechsel_folge> wechsel_folge_lesen(std::string_view text);
/// "1-6-5-4-3-2-P"
std::string wechsel_folge_text(const wechsel_folge& folge);

/// The built-in scheme and those of `Wechselschema.ws`; an entry that is not valid says so in `ungueltig`. `gelesen` is
/// false if the file cannot be read.
std::vector<wechselschema> wechselschemas_lesen(const dateien& ablage, std::string_view ungueltig, bool& gelesen);

enum class schema_ablage { gespeichert, name_vergeben, nicht_geschrieben };

/// Appends the scheme to the file, unless its name is taken in `vorhanden`.
schema_ablage wechselschema_speichern(const dateien& ablage, const std::vector<wechselschema>& vorhanden,
                                      std::string_view name, const wechsel_folge& folge);
/// As it stands in the choice.
std::string wechselschema_anzeige(std::string_view name, const wechsel_folge& folge);

/// Every lane once and the pause: of a mark that stands there twice the first counts, what is missing follows in order.
wechsel_folge wechsel_folge_ergaenzt(const wechsel_folge& folge);

/// For each lane the one that its next driver comes from, 0 for a lane that is not `aktiv`: unused lanes are passed
/// over.
spuren<int> wechsel_nachfolger(const wechsel_folge& folge, const spuren<bool>& aktiv);

/// The same where drivers wait: index is an active lane or `wechsel_pause`, its value where the next driver comes from,
/// which may be `wechsel_pause`. 0 for other lanes.
wechsel_folge wechsel_ziel(const wechsel_folge& folge, const spuren<bool>& aktiv);

}  // namespace tarvel

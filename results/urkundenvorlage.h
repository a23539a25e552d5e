#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/steuerelemente.h"

namespace tarvel {

/// What a certificate may say of its driver, in the order of `urkundenwort_namen`.
enum class urkundenwort : std::size_t {
    verein,
    veranstaltung,
    rennen,
    datum,
    fahrer,
    fahrzeug,
    platz,
    platzwort,
    teilnehmer,
    klasse,
    spur,
    strecke,
    runden,
    meter,
    gesamtzeit,
    beste,
    tempo
};
inline constexpr std::array urkundenwort_namen{std::to_array<std::string_view>(
    {"Verein", "Veranstaltung", "Rennen", "Datum", "Fahrer", "Fahrzeug", "Platz", "Platzwort", "Teilnehmer", "Klasse",
     "Spur", "Strecke", "Runden", "Meter", "Gesamtzeit", "BesteRunde", "Tempo"})};
/// The same for who writes his template in English.
inline constexpr std::array urkundenwort_englisch{std::to_array<std::string_view>(
    {"Club", "Event", "Race", "Date", "Driver", "Car", "Place", "PlaceWord", "Participants", "Class", "Lane", "Track",
     "Laps", "Metres", "TotalTime", "BestLap", "Speed"})};
static_assert(urkundenwort_englisch.size() == urkundenwort_namen.size());
using urkundenworte = std::array<std::string, urkundenwort_namen.size()>;

/// One thing on the page. Lengths are millimetres from the upper left corner of an A4 page.
struct vorlagenelement {
    enum class art { flaeche, rahmen, linie, text, bild, plakette, zielflagge };
    enum class buendig { links, mitte, rechts };
    enum class motiv { fahrer, fahrzeug, datei };

    art was = art::flaeche;
    double x = 0;
    double y = 0;
    double breite = 0;
    double hoehe = 0;
    farbe farbton = 0;
    double mass = 0;  ///< of the letters, of a line, or the edge of a picture
    bool rund = false;
    bool fett = false;
    bool kursiv = false;
    bool serifen = false;
    buendig an = buendig::links;
    motiv zeigt = motiv::fahrer;
    std::string inhalt;  ///< text with words in braces by their German names, or the file of a picture

    bool operator==(const vorlagenelement&) const = default;
};

using urkundenvorlage = std::vector<vorlagenelement>;

struct gelesene_vorlage {
    urkundenvorlage vorlage;
    std::size_t fehlerzeile = 0;  ///< the first line that is none, from 1; 0 for a template without a fault
};

/// Reads the lines of a template, in German words or in English ones. One with a fault is not to be used.
gelesene_vorlage vorlage_lesen(const std::vector<std::string>& zeilen);

/// What the template that the program comes with says by itself.
struct vorlagentitel {
    std::string urkunde = "URKUNDE";
    std::string runden = "Runden";
    std::string beste = "beste Runde";
    std::string gesamtzeit = "Gesamtzeit";
    std::string datum = "Datum";
    std::string rennleitung = "Rennleitung";
};
/// Its lines.
std::vector<std::string> eingebaute_vorlage(const vorlagentitel& titel = {});

/// The text with its words in place; empty if one of them is, so that no caption stands beside nothing.
std::string eingesetzt(std::string_view inhalt, const urkundenworte& worte);

}  // namespace tarvel

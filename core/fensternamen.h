#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tarvel {

// The windows of the program, in the order in which its end closes them. One list, so that a window's name and its
// place in that order cannot come apart.
#define TARVEL_FENSTER(F)     \
    F(wiedergabe)             \
    F(auswertung)             \
    F(bahn1)                  \
    F(drucker_fenster)        \
    F(einfahren)              \
    F(frmMain)                \
    F(einstellungen)          \
    F(fahrerspeichernfenster) \
    F(Form2)                  \
    F(Form3)                  \
    F(k_ampel)                \
    F(leitstand)              \
    F(protokoll)              \
    F(rangliste)              \
    F(rc_einstellungen)       \
    F(rundenspeichern)        \
    F(speichernfenster)       \
    F(urkunden)               \
    F(usbtest)                \
    F(w_auswertung)           \
    F(wettkampf1)             \
    F(wettkampf2)             \
    F(s6_fragefenster)        \
    F(Form5)                  \
    F(Form1)                  \
    F(beste_zeiten_fenster)   \
    F(cu_eigenschaften)       \
    F(Tastaturbelegung)       \
    F(Tagesrennen)            \
    F(fahrerbild_laden)       \
    F(w_ausw_debug)           \
    F(w_auswertung2)          \
    F(UART_einstellungen)     \
    F(UART_Profildatei)       \
    F(UART_probe)             \
    F(timekeeper)             \
    F(Update_form)            \
    F(beste_zeiten_verwaltung)

#define TARVEL_FENSTER_KENNUNG(name) name,
#define TARVEL_FENSTER_TEXT(name) #name,

enum class fenstername : std::size_t { TARVEL_FENSTER(TARVEL_FENSTER_KENNUNG) };

inline constexpr std::array fensternamen{std::to_array<std::string_view>({TARVEL_FENSTER(TARVEL_FENSTER_TEXT)})};

#undef TARVEL_FENSTER
#undef TARVEL_FENSTER_KENNUNG
#undef TARVEL_FENSTER_TEXT

/// As in the names of its widgets.
constexpr std::string_view text_von(fenstername name) {
    return fensternamen[static_cast<std::size_t>(name)];
}

}  // namespace tarvel

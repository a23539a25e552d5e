#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "core/einstellungen.h"
#include "core/form1.h"
#include "core/texte.h"

/// Where a value of the settings lives, for tables that name each value once.
namespace tarvel {

/// What a settings file fills and is written from: the record, and the fields of the main window.
struct einstellungs_ziel {
    einstellungen& einst;
    form1& haupt;
    const texte& txt;
};

template <class T>
using zugriff = std::function<T&(const einstellungs_ziel&)>;

/// A value of the record.
template <class T>
zugriff<T> wert(T einstellungen::*feld) {
    return [feld](const einstellungs_ziel& ziel) -> T& { return ziel.einst.*feld; };
}

/// An element of an array of the record.
template <class T, std::size_t N>
zugriff<T> element(std::array<T, N> einstellungen::*feld, std::size_t index) {
    return [feld, index](const einstellungs_ziel& a) -> T& { return (a.einst.*feld).at(index); };
}

template <class T>
zugriff<T> je_spur(spuren<T> einstellungen::*feld, int spur) {
    return [feld, spur](const einstellungs_ziel& a) -> T& { return (a.einst.*feld)[spur]; };
}

inline zugriff<bool> hardware(bool messhardware::*feld) {
    return [feld](const einstellungs_ziel& a) -> bool& { return a.einst.hardware.*feld; };
}

}  // namespace tarvel

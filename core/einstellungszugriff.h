#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

#include "core/einstellungen.h"
#include "core/renneinrichtung.h"
#include "core/texte.h"

/// Where a value of the settings lives, for tables that name each value once.
namespace tarvel {

/// What a settings file fills and is written from.
struct einstellungs_ziel {
    einstellungen& einst;
    renneinrichtung& einrichtung;
    const texte& txt;
};

template <class T>
using zugriff = std::function<T&(const einstellungs_ziel&)>;

/// A value of the record, or of a record in it: the members on the way to it.
template <class... Glieder>
auto wert(Glieder... weg) {
    using T = std::remove_reference_t<decltype((std::declval<einstellungen&>().*....*weg))>;
    return zugriff<T>([weg...](const einstellungs_ziel& ziel) -> T& { return (ziel.einst.*....*weg); });
}

/// An element of an array of the record.
template <class T, std::size_t N>
zugriff<T> element(std::array<T, N> einstellungen::*feld, std::size_t index) {
    return [feld, index](const einstellungs_ziel& a) -> T& { return (a.einst.*feld).at(index); };
}

template <class T, std::size_t N>
zugriff<T> element(const zugriff<std::array<T, N>>& feld, std::size_t index) {
    return [feld, index](const einstellungs_ziel& a) -> T& { return feld(a).at(index); };
}

template <class T>
zugriff<T> je_spur(spuren<T> einstellungen::*feld, int spur) {
    return [feld, spur](const einstellungs_ziel& a) -> T& { return (a.einst.*feld)[spur]; };
}

template <class T>
zugriff<T> je_spur(const zugriff<spuren<T>>& feld, int spur) {
    return [feld, spur](const einstellungs_ziel& a) -> T& { return feld(a)[spur]; };
}

/// Of the set-up of a race.
template <class T>
zugriff<T> einrichtung(T renneinrichtung::*feld) {
    return [feld](const einstellungs_ziel& a) -> T& { return a.einrichtung.*feld; };
}

template <class T>
zugriff<T> einrichtung(int spur, T renneinrichtung::spur::*feld) {
    return [spur, feld](const einstellungs_ziel& a) -> T& { return a.einrichtung.bahn[spur].*feld; };
}

template <class T>
zugriff<T> hardware(T messhardware::*feld) {
    return [feld](const einstellungs_ziel& a) -> T& { return a.einst.hardware.*feld; };
}

/// A whole number of the record, whatever its type: a choice stands for its number, a duration for the count of its
/// unit.
class zahlzugriff {
public:
    template <std::invocable<const einstellungs_ziel&> Zugriff>
    zahlzugriff(Zugriff ziel)
        : lesen_([ziel](const einstellungs_ziel& a) { return als_zahl(ziel(a)); }),
          setzen_([ziel](const einstellungs_ziel& a, int zahl) {
              auto& wert = ziel(a);
              wert = static_cast<std::remove_reference_t<decltype(wert)>>(zahl);
          }) {}

    int operator()(const einstellungs_ziel& a) const { return lesen_(a); }
    void operator()(const einstellungs_ziel& a, int zahl) const { setzen_(a, zahl); }

private:
    template <class T>
    static int als_zahl(const T& wert) {
        if constexpr (requires { wert.count(); }) {
            return static_cast<int>(wert.count());
        } else {
            return static_cast<int>(wert);
        }
    }

    std::function<int(const einstellungs_ziel&)> lesen_;
    std::function<void(const einstellungs_ziel&, int)> setzen_;
};

}  // namespace tarvel

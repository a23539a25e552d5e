#pragma once

#include <algorithm>
#include <cmath>

namespace tarvel {

/// A place in a window, in pixels.
struct rechteck {
    int x = 0;
    int y = 0;
    int breite = 0;
    int hoehe = 0;

    int rechts() const { return x + breite; }
    int unten() const { return y + hoehe; }
    bool leer() const { return breite <= 0 || hoehe <= 0; }
    rechteck verschoben(int dx, int dy) const { return {x + dx, y + dy, breite, hoehe}; }
    /// Without an edge of this width all round.
    rechteck innen(double rand) const {
        const int r = static_cast<int>(std::lround(rand));
        return {x + r, y + r, std::max(breite - 2 * r, 0), std::max(hoehe - 2 * r, 0)};
    }
    bool operator==(const rechteck&) const = default;
};

/// Cuts a place into pieces, one after the other, with a gap behind each. A piece is never larger than what is left.
class zuschnitt {
public:
    explicit zuschnitt(const rechteck& ganzes, double luecke = 0)
        : rest_(ganzes), luecke_(static_cast<int>(std::lround(luecke))) {}

    rechteck oben(double hoehe) { return vorn(&rechteck::y, &rechteck::hoehe, hoehe); }
    rechteck unten(double hoehe) { return hinten(&rechteck::y, &rechteck::hoehe, hoehe); }
    rechteck links(double breite) { return vorn(&rechteck::x, &rechteck::breite, breite); }
    rechteck rechts(double breite) { return hinten(&rechteck::x, &rechteck::breite, breite); }
    const rechteck& rest() const { return rest_; }

private:
    rechteck vorn(int rechteck::*anfang, int rechteck::*laenge, double px) {
        const rechteck stueck = abschnitt(laenge, px);
        const int weg = verbrauch(stueck.*laenge, rest_.*laenge);
        rest_.*anfang += weg;
        rest_.*laenge -= weg;
        return stueck;
    }
    rechteck hinten(int rechteck::*anfang, int rechteck::*laenge, double px) {
        rechteck stueck = abschnitt(laenge, px);
        stueck.*anfang += rest_.*laenge - stueck.*laenge;
        rest_.*laenge -= verbrauch(stueck.*laenge, rest_.*laenge);
        return stueck;
    }
    rechteck abschnitt(int rechteck::*laenge, double px) const {
        rechteck stueck = rest_;
        stueck.*laenge = std::clamp(static_cast<int>(std::lround(px)), 0, rest_.*laenge);
        return stueck;
    }
    int verbrauch(int px, int vorhanden) const { return px > 0 ? std::min(px + luecke_, vorhanden) : 0; }

    rechteck rest_;
    int luecke_;
};

}  // namespace tarvel

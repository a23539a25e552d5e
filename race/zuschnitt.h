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

    rechteck oben(double hoehe) {
        const int h = laenge(hoehe, rest_.hoehe);
        const rechteck stueck{rest_.x, rest_.y, rest_.breite, h};
        const int weg = verbrauch(h, rest_.hoehe);
        rest_.y += weg;
        rest_.hoehe -= weg;
        return stueck;
    }
    rechteck unten(double hoehe) {
        const int h = laenge(hoehe, rest_.hoehe);
        const rechteck stueck{rest_.x, rest_.unten() - h, rest_.breite, h};
        rest_.hoehe -= verbrauch(h, rest_.hoehe);
        return stueck;
    }
    rechteck links(double breite) {
        const int b = laenge(breite, rest_.breite);
        const rechteck stueck{rest_.x, rest_.y, b, rest_.hoehe};
        const int weg = verbrauch(b, rest_.breite);
        rest_.x += weg;
        rest_.breite -= weg;
        return stueck;
    }
    rechteck rechts(double breite) {
        const int b = laenge(breite, rest_.breite);
        const rechteck stueck{rest_.rechts() - b, rest_.y, b, rest_.hoehe};
        rest_.breite -= verbrauch(b, rest_.breite);
        return stueck;
    }
    const rechteck& rest() const { return rest_; }

private:
    static int laenge(double px, int vorhanden) { return std::clamp(static_cast<int>(std::lround(px)), 0, vorhanden); }
    int verbrauch(int px, int vorhanden) const { return px > 0 ? std::min(px + luecke_, vorhanden) : 0; }

    rechteck rest_;
    int luecke_;
};

}  // namespace tarvel

#include "ui/namenseinpassung.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>

#include "core/text.h"
#include "ui/listenmodell.h"

namespace tarvel::ui {
namespace {

constexpr double namen_lesbar_px = 11;  // no whole name makes the letters smaller

double zeichenbreite(int schrift_px) {
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    schrift.setPixelSize(schrift_px);
    return QFontMetricsF(schrift).horizontalAdvance('0');
}

}  // namespace

int namen_einpassen(QListView& ansicht, const liste& zeilen, const namensspalten& namen, const zeilenplatz& platz) {
    std::size_t ganz = std::max<std::size_t>(platz.kopf, 1);
    std::size_t andere = platz.mindestens;
    for (std::size_t i = 0; i < zeilen.zeilen().size(); ++i) {
        std::size_t& laengste = i < namen.zeilen ? ganz : andere;
        laengste = std::max(laengste, laenge(zeilen.gezeigt(i)));
    }
    const std::size_t weniger = namen.ab.size() * (namen.breite - std::min(namen.mindestens, namen.breite));
    const std::size_t schmal = std::max(andere, ganz - std::min(weniger, ganz));
    constexpr int probe_px = 100;
    const double je_px = zeichenbreite(probe_px) / probe_px;
    const auto passend = [&](std::size_t zeichen) { return platz.breite / (je_px * static_cast<double>(zeichen)); };
    const double hoechstens = std::clamp(passend(schmal), platz.schrift_min, platz.schrift_max);
    const double mindestens =
        std::max({platz.schrift_min, hoechstens * platz.anteil_fuer_namen, std::min(namen_lesbar_px, hoechstens)});
    const double px = std::clamp(passend(std::max(ganz, andere)), mindestens, hoechstens);
    const int schrift_px = static_cast<int>(px);
    const auto zeichen = static_cast<std::size_t>(std::max(platz.breite, 0.0) / zeichenbreite(schrift_px));
    static_cast<ListenModell*>(ansicht.model())->setNamen(namen, passende_breite(namen, ganz, zeichen));
    return schrift_px;
}

std::size_t laengste_zeile(const QListView& ansicht, const liste& zeilen) {
    const auto* modell = static_cast<const ListenModell*>(ansicht.model());
    const namensspalten& namen = modell->namen();
    const std::size_t weniger = namen.ab.size() * (namen.breite - modell->namensbreite());
    std::size_t laengste = 0;
    for (std::size_t i = 0; i < zeilen.zeilen().size(); ++i) {
        const std::size_t ganz = laenge(zeilen.gezeigt(i));
        laengste = std::max(laengste, ganz - (i < namen.zeilen ? std::min(weniger, ganz) : 0));
    }
    return laengste;
}

QString kopf_einpassen(const QListView& ansicht, const std::string& kopf) {
    const auto* modell = static_cast<const ListenModell*>(ansicht.model());
    const bool schmal = modell->namensbreite() < modell->namen().breite;
    return QString::fromStdString(schmal ? mit_schmalen_namen(kopf, modell->namen(), modell->namensbreite()) : kopf);
}

}  // namespace tarvel::ui

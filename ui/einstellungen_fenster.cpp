#include "ui/einstellungen_fenster.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/optionsseite_bauen.h"
#include "ui/stil.h"
#include "ui/ziehen.h"

namespace tarvel::ui {
namespace {

constexpr int seitenliste_breite = 180;
constexpr QSize vorschaugroesse(280, 210);

}  // namespace

EinstellungenFenster::EinstellungenFenster(einstellungsfenster& logik, const dateien& ablage,
                                           Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), ablage_(ablage) {
    // The first to be made are sure of a letter: there are more commands on the pages than letters.
    uebernehmen_ = binder().hauptknopf(logik.Command1, "Command1");
    QPushButton* abbrechen = binder().knopf(logik.Command2, "Command2");
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(10);
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(14);
    QListView* seiten = binder().listenfeld(logik.seitenliste, "seitenliste");
    seiten->setFixedWidth(seitenliste_breite);
    seiten->setStyleSheet("QListView::item { padding: 9px 8px; border-radius: 5px; }");
    mitte->addWidget(seiten);
    auto* stapel = new QVBoxLayout;
    for (int nummer = 0; nummer < einstellungsfenster::seiten_anzahl; ++nummer) {
        auto* eine = new QWidget(this);  // shown and hidden by the page's control alone, whatever its title does
        auto* inhalt = new QVBoxLayout(eine);
        inhalt->setContentsMargins(0, 0, 0, 0);
        inhalt->addWidget(seite(nummer));
        binder().verbinden(logik.seitenrahmen.at(static_cast<std::size_t>(nummer)), eine,
                           "seite_" + QString::number(nummer), {});
        stapel->addWidget(eine);
    }
    mitte->addLayout(stapel, 1);
    aufbau->addLayout(mitte, 1);

    for (QPushButton* knopf : {uebernehmen_, abbrechen}) {  // Tab comes to them last
        knopf->setParent(nullptr);
        knopf->setParent(this);
        knopf->show();
    }
    aufbau->addLayout(stil::knopfzeile({uebernehmen_, abbrechen}));
    resize(1200, 820);
}

QWidget* EinstellungenFenster::seite(int nummer) {
    switch (nummer) {
        case einstellungsfenster::seite_fahrer:
            return listenseite_bauen(logik_.fahrerseite, "fahrer");
        case einstellungsfenster::seite_fahrzeuge:
            return listenseite_bauen(logik_.fahrzeugseite, "fahrzeug");
        case einstellungsfenster::seite_hardware:
            return OptionsseiteBauen(binder(), this, uebernehmen_).seite(*logik_.zeilenseite(nummer), hardwarewahl());
        default:
            return OptionsseiteBauen(binder(), this, uebernehmen_).seite(*logik_.zeilenseite(nummer));
    }
}

QWidget* EinstellungenFenster::hardwarewahl() {
    QGroupBox* kasten = binder().gruppe(logik_.hardware_rahmen, "hardware_rahmen");
    auto* aufbau = new QVBoxLayout(kasten);
    for (std::size_t nummer = 0; nummer < logik_.hardware.size(); ++nummer) {
        aufbau->addWidget(binder().wahlknopf(logik_.hardware.at(nummer), "hardware" + QString::number(nummer)));
    }
    QLabel* hinweis = binder().label(logik_.hardware_hinweis, "hardware_hinweis");
    hinweis->setWordWrap(true);
    hinweis->setProperty("rolle", "warnung");
    aufbau->addWidget(hinweis);
    return kasten;
}

QWidget* EinstellungenFenster::listenseite_bauen(listenseite& logik, const QString& vorspann) {
    QGroupBox* kasten = binder().gruppe(logik.titel, vorspann + "_titel");
    auto* spalten = new QHBoxLayout(kasten);
    spalten->setSpacing(18);
    auto* links = new QVBoxLayout;
    auto* neu = new QHBoxLayout;
    QLineEdit* name = binder().zeile(logik.name, vorspann + "_name");
    QPushButton* hinzufuegen = binder().knopf(logik.hinzufuegen, vorspann + "_hinzufuegen");
    QObject::connect(name, &QLineEdit::returnPressed, hinzufuegen, [&logik] { logik.hinzufuegen.klicken(); });
    neu->addWidget(binder().label(logik.Label_name, vorspann + "_Label_name"));
    neu->addWidget(name, 1);
    neu->addWidget(hinzufuegen);
    links->addLayout(neu);
    links->addWidget(binder().listenfeld(logik.namen, vorspann + "liste"), 1);
    auto* unten = new QHBoxLayout;
    unten->addWidget(binder().knopf(logik.entfernen, vorspann + "_entfernen"));
    unten->addWidget(binder().knopf(logik.alle_loeschen, vorspann + "_alle_loeschen"));
    unten->addStretch();
    links->addLayout(unten);
    spalten->addLayout(links, 1);

    auto* rechts = new QVBoxLayout;
    QLabel* vorschau = binder().bildfeld(logik.vorschau, vorspann + "_vorschau", vorschaugroesse,
                                         [this](const std::string& datei) { return ablage_.pfad(datei); });
    bild_annehmen(vorschau, [&logik](const std::filesystem::path& bild) { logik.bild_ablegen(bild); });
    rechts->addWidget(vorschau, 0, Qt::AlignHCenter);
    auto* bildbefehle = new QHBoxLayout;
    bildbefehle->addWidget(binder().knopf(logik.anderes_bild, vorspann == "fahrer" ? "Command40" : "Command41"));
    bildbefehle->addWidget(binder().knopf(logik.kein_bild, vorspann + "_kein_bild"));
    rechts->addLayout(bildbefehle);
    rechts->addStretch();
    rechts->addWidget(binder().knopf(logik.Liste_laden, vorspann + "_Liste_laden"));
    rechts->addWidget(binder().knopf(logik.Liste_speichern, vorspann + "_Liste_speichern"));
    spalten->addLayout(rechts);
    return kasten;
}

}  // namespace tarvel::ui

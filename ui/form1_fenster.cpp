#include "ui/form1_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/eingabefelder.h"
#include "ui/stil.h"
#include "ui/streckenbild.h"
#include "ui/umbruchkasten.h"

namespace tarvel::ui {
namespace {

constexpr int feldbreite = 74;
constexpr int listenbreite_min = 240;
constexpr int listenbreite_max = 340;
constexpr int listenabstand = 10;
constexpr QMargins inhaltsrand(stil::fensterrand.left(), 4, stil::fensterrand.right(), stil::fensterrand.bottom());
constexpr QSize bildgroesse(52, 36);
constexpr QSize eigenes_bild_groesse(140, 80);

void schmal(QLineEdit* feld) {
    nur_zahlen_annehmen(feld);
    feld->setFixedWidth(feldbreite);
    feld->setAlignment(Qt::AlignRight);
}

/// The focus goes through these from left to right.
void tabfolge(const std::vector<QWidget*>& folge) {
    for (std::size_t i = 1; i < folge.size(); ++i) {
        QWidget::setTabOrder(folge[i - 1], folge[i]);
    }
}

}  // namespace

Form1Fenster::Form1Fenster(form1& logik, const dateien& ablage, Fensterverwaltung& verwaltung)
    : Fenster(logik, verwaltung, nullptr), logik_(logik), ablage_(ablage) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);

    auto* kopf = new Streckenbild(this);
    kopf_ = kopf;
    binder().verbinden(logik.startbild, kopf, "startbild", {});
    kopf->setMinimumHeight(84);
    auto* unterzeile = new QWidget(this);
    unterzeile->resize(0, 0);  // the picture draws the line itself
    binder().verbinden(logik.untertitel, unterzeile, "untertitel",
                       [kopf, &logik] { kopf->setTitel("Tarvel", QString::fromStdString(logik.untertitel.text())); });
    auto* kopf_aufbau = new QHBoxLayout(kopf);
    kopf_aufbau->setContentsMargins(9, 0, 9, 0);
    kopf_aufbau->addStretch();
    for (std::size_t i = 0; i < logik.eigenes_bild.size(); ++i) {
        kopf_aufbau->addWidget(binder().bildfeld(logik.eigenes_bild.at(i), "eigenes_bild_" + QString::number(i),
                                                 eigenes_bild_groesse,
                                                 [this](const std::string& datei) { return ablage_.pfad(datei); }));
    }
    QLabel* version = binder().label(logik.version_label, "version_label");
    version->setStyleSheet("color: #cdd2dc; background: transparent; padding-top: 8px;");
    kopf_aufbau->addWidget(version, 0, Qt::AlignRight | Qt::AlignTop);
    aufbau->addWidget(kopf, 2);

    auto* flaeche = new QWidget(this);
    binder().verbinden(logik.inhalt, flaeche, "inhalt", {});
    auto* inhalt = new QVBoxLayout(flaeche);
    inhalt_ = inhalt;
    inhalt_->setContentsMargins(inhaltsrand);
    inhalt->setSpacing(6);
    inhalt->addWidget(rennen_gruppe());
    auto* spuren = new QGridLayout;
    spuren_ = spuren;
    spuren->setSpacing(0);
    spuren->setColumnStretch(0, 1);
    spuren->addWidget(spuren_gruppe(), 0, 0);
    spuren->addWidget(fahrerliste(), 0, 1);
    inhalt->addLayout(spuren, 3);
    inhalt->addSpacing(4);
    inhalt->addWidget(rennbefehle());
    inhalt->addWidget(werkzeugbefehle());
    inhalt->addWidget(statuszeile());
    aufbau->addWidget(flaeche, 5);
    aufbau->addWidget(wartehinweis(), 5);
    // Beside the title, where it takes no room; made last, for it comes and goes and takes no letter from others.
    QPushButton* letztes_mal = binder().knopf(logik.command_wieder, "command_wieder", "zeile");
    spuren->addWidget(letztes_mal, 0, 0, Qt::AlignTop | Qt::AlignRight);
    tabfolge({findChild<QWidget*>("Form1.wertmin"), letztes_mal, findChild<QWidget*>("Form1.command_liste")});
    auto* hilfe = new QShortcut(Qt::Key_F1, this);
    QObject::connect(hilfe, &QShortcut::activated, this, [this] { logik_.taste_F1(); });
    resize(980, 700);
}

void Form1Fenster::resizeEvent(QResizeEvent* ereignis) {
    constexpr int kopfhoehe = 310;  // of a large screen; a larger one has better use for its height
    Fenster::resizeEvent(ereignis);
    kopf_->setMaximumHeight(std::max(kopfhoehe, height() * 15 / 100));
    inhalt_->setContentsMargins(stil::zusammenhaltend(size(), inhaltsrand));
    if (fahrerliste_->width() > 0) {
        fahrerliste_->setFixedWidth(listenbreite());
    }
}

int Form1Fenster::listenbreite() const {
    constexpr int fuer_die_spuren = 980;
    return std::clamp(width() - fuer_die_spuren, listenbreite_min, listenbreite_max);
}

QWidget* Form1Fenster::wartehinweis() {
    auto* flaeche = new QWidget(this);
    binder().verbinden(logik_.µwartehinweis, flaeche, "µwartehinweis", {});
    auto* aufbau = new QVBoxLayout(flaeche);
    QLabel* titel = binder().label(logik_.µwarte_titel, "µwarte_titel");
    titel->setStyleSheet("font-size: 34px; font-weight: bold;");
    QLabel* text = binder().label(logik_.µwarte_text, "µwarte_text");
    stil::leise(text)->setStyleSheet("font-size: 20px;");
    aufbau->addStretch(2);
    aufbau->addWidget(titel, 0, Qt::AlignHCenter);
    aufbau->addSpacing(8);
    aufbau->addWidget(text, 0, Qt::AlignHCenter);
    aufbau->addStretch(3);
    return flaeche;
}

QWidget* Form1Fenster::rennen_gruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_rennen, "Frame_rennen");
    auto* raster = new QGridLayout(gruppe);
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(8);

    QComboBox* art = binder().auswahlfeld(logik_.rennart, "rennart");
    art->setMinimumWidth(130);
    QLineEdit* stunden = binder().zeile(logik_.stddauer, "stddauer");
    QLineEdit* dauer = binder().zeile(logik_.renndauer, "renndauer");
    QLineEdit* kuerzeste = binder().zeile(logik_.wertmin, "wertmin");
    QLineEdit* massstab = binder().zeile(logik_.massstab, "massstab");
    for (QLineEdit* feld : {stunden, dauer, kuerzeste, massstab}) {
        schmal(feld);
    }

    raster->addWidget(binder().label(logik_.Label_rennart, "Label_rennart"), 0, 0);
    raster->addWidget(art, 0, 1);
    raster->setColumnMinimumWidth(2, 24);
    raster->addWidget(binder().label(logik_.dauerlabel, "dauerlabel"), 0, 3);
    auto* dauer_zeile = new QHBoxLayout;
    QLabel* stundenwort = binder().label(logik_.Label8, "Label8");
    for (QWidget* nur_der_zeit : {static_cast<QWidget*>(stunden), static_cast<QWidget*>(stundenwort)}) {
        QSizePolicy bleibt = nur_der_zeit->sizePolicy();  // nothing jumps as the kind of race changes
        bleibt.setRetainSizeWhenHidden(true);
        nur_der_zeit->setSizePolicy(bleibt);
        dauer_zeile->addWidget(nur_der_zeit);
    }
    dauer_zeile->addSpacing(8);
    dauer_zeile->addWidget(dauer);
    QLabel* einheit = binder().label(logik_.Label19, "Label19");
    constexpr int minuten_oder_runden = 9;  // letters
    einheit->setMinimumWidth(minuten_oder_runden * einheit->fontMetrics().averageCharWidth());
    dauer_zeile->addWidget(einheit);
    dauer_zeile->addStretch();
    raster->addLayout(dauer_zeile, 0, 4);

    raster->addWidget(binder().label(logik_.Label2, "Label2"), 1, 0);
    raster->addWidget(massstab, 1, 1);
    raster->addWidget(binder().label(logik_.Label9, "Label9"), 1, 3);
    auto* verwerfen = new QHBoxLayout;
    verwerfen->addWidget(kuerzeste);
    verwerfen->addWidget(binder().label(logik_.Label10, "Label10"));
    verwerfen->addStretch();
    raster->addLayout(verwerfen, 1, 4);
    raster->setColumnMinimumWidth(5, 16);
    QCheckBox* tank = binder().kasten(logik_.t_aktiv, "t_aktiv");
    QSizePolicy ganz = tank->sizePolicy();  // beside fields it is never cut
    ganz.setHorizontalPolicy(QSizePolicy::Minimum);
    tank->setSizePolicy(ganz);
    raster->addWidget(tank, 0, 6, Qt::AlignVCenter);
    QLabel* tankwerte = binder().label(logik_.tank_label, "tank_label");
    QSizePolicy haelt_platz(QSizePolicy::Ignored, QSizePolicy::Preferred);  // long values do not widen the window
    haelt_platz.setRetainSizeWhenHidden(true);
    tankwerte->setSizePolicy(haelt_platz);
    tankwerte->setWordWrap(true);
    tankwerte->setMinimumWidth(155);
    raster->addWidget(tankwerte, 1, 6);
    raster->setColumnStretch(6, 1);
    tabfolge({art, stunden, dauer, tank, massstab, kuerzeste});
    new Weitersprung(art, dauer);
    return gruppe;
}

QWidget* Form1Fenster::spuren_gruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_spuren, "Frame_spuren");
    auto* raster = new QGridLayout(gruppe);
    raster->setHorizontalSpacing(6);
    raster->setVerticalSpacing(3);
    spurzeilen_ = new Spurzeilen(logik_, gruppe);
    using knoepfe = std::vector<std::pair<befehl*, QString>>;
    const auto kopf = [&](bezeichnung& element, const QString& name, int spalte, const knoepfe& daneben = {}) {
        auto* zelle = new QHBoxLayout;
        zelle->setSpacing(4);
        zelle->addWidget(stil::leise(binder().label(element, name)));
        zelle->addStretch();
        for (const auto& [knopf, knopfname] : daneben) {
            zelle->addWidget(binder().knopf(*knopf, knopfname, "schmal"));
        }
        raster->addLayout(zelle, 0, spalte);
        return zelle;
    };
    raster->addWidget(weichend(stil::leise(binder().label(logik_.label_spurlaenge, "label_spurlaenge"))), 0, 2);
    raster->addWidget(weichend(stil::leise(binder().label(logik_.Label_meter, "Label_meter"))), 0, 3);
    kopf(logik_.Label_fahrer, "Label_fahrer", 5, {{&logik_.command_liste, "command_liste"}})
        ->addWidget(weichend(binder().knopf(logik_.Command13, "Command13", "schmal")));
    kopf(logik_.Label_auto, "Label_auto", 7)
        ->addWidget(weichend(binder().knopf(logik_.Command10, "Command10", "schmal")));
    raster->addWidget(weichend(stil::leise(binder().label(logik_.Label_bestzeit, "Label_bestzeit"))), 0, 8);
    for (const int spur : alle_spuren) {
        spur_zeile(raster, spur);
        raster->setRowStretch(spur, 1);
    }
    raster->setColumnStretch(5, 4);  // people have longer names
    raster->setColumnStretch(7, 3);
    return gruppe;
}

QWidget* Form1Fenster::weichend(QWidget* inhalt) {
    auto* huelle = new QWidget(this);  // for its logic shows and hides what is in it
    auto* innen = new QHBoxLayout(huelle);
    innen->setContentsMargins(0, 0, 0, 0);
    innen->addWidget(inhalt);
    weichen_der_liste_.push_back(huelle);
    return huelle;
}

void Form1Fenster::spur_zeile(QGridLayout* raster, int spur) {
    const std::size_t i = feld_index(spur);
    const QString nummer = QString::number(i);
    auto* fleck = new QLabel(this);
    fleck->setFixedSize(14, 26);
    form& spurfarbe = logik_.spurfarbe.at(i);
    binder().verbinden(spurfarbe, fleck, "spurfarbe_" + nummer,
                       [&spurfarbe, fleck] { stil::fleck_faerben(fleck, spurfarbe.hintergrund().value_or(0)); });
    QCheckBox* kasten = binder().kasten(logik_.spur.at(i), "spur_" + nummer);
    QLineEdit* laenge = binder().zeile(logik_.lspur.at(i), "lspur_" + nummer);
    schmal(laenge);
    QComboBox* fahrer = binder().auswahlfeld(logik_.fahrer.at(i), "fahrer_" + nummer);
    QComboBox* fahrzeug = binder().auswahlfeld(logik_.auto_.at(i), "auto_" + nummer);
    const auto im_ordner = [this](const std::string& datei) { return ablage_.pfad(datei); };
    QLabel* fahrerbild = binder().bildfeld(logik_.fahrerbild.at(i), "fahrerbild_" + nummer, bildgroesse, im_ordner);
    QLabel* autobild = binder().bildfeld(logik_.autobild.at(i), "autobild_" + nummer, bildgroesse, im_ordner);
    QLabel* bestzeit = binder().label(logik_.Label_fahrzeug.at(i), "Label_fahrzeug_" + nummer);
    bestzeit->setMinimumWidth(76);
    const std::vector<QWidget*> zeile{
        fleck, kasten, weichend(laenge), nullptr, fahrerbild, fahrer, weichend(autobild), fahrzeug, weichend(bestzeit)};
    for (std::size_t spalte = 0; spalte < zeile.size(); ++spalte) {
        if (zeile[spalte] != nullptr) {
            raster->addWidget(zeile[spalte], spur, static_cast<int>(spalte), Qt::AlignVCenter);
        }
    }
    tabfolge({kasten, laenge, fahrer, fahrzeug});
    static_cast<UmbruchKasten*>(kasten)->setZiffernTaste();
    auto* sprung = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + spur)), this);
    QObject::connect(sprung, &QShortcut::activated, this, [kasten, fahrer] {
        (fahrer->isEnabled() ? static_cast<QWidget*>(fahrer) : kasten)->setFocus(Qt::ShortcutFocusReason);
        if (fahrer->hasFocus()) {
            fahrer->lineEdit()->selectAll();  // also for who was there already
        }
    });
    spurzeilen_->aufnehmen(spur, {{fleck, fahrerbild, autobild},
                                  {fahrerbild, fahrer},
                                  {autobild, fahrzeug},
                                  {kasten, laenge, fahrer, fahrzeug}});
}

QWidget* Form1Fenster::fahrerliste() {
    auto* gruppe = new QGroupBox(this);
    fahrerliste_ = gruppe;
    gruppe->setFixedWidth(0);
    binder().verbinden(logik_.Frame_liste, gruppe, "Frame_liste", [this, gruppe] {
        gruppe->setTitle(QString::fromStdString(logik_.Frame_liste.text()));
        const bool offen = logik_.Frame_liste.sichtbar();
        const auto platz_machen = [this, offen] {
            for (QWidget* weichend : weichen_der_liste_) {
                weichend->setVisible(!offen);
            }
        };
        const auto breite_geben = [this, gruppe, offen] {
            gruppe->setFixedWidth(offen ? listenbreite() : 0);
            spuren_->setHorizontalSpacing(offen ? listenabstand : 0);
        };
        // one after the other, with what follows in the layout between them: both at once would make the window grow
        if (offen) {
            platz_machen();
            QTimer::singleShot(0, gruppe, breite_geben);
        } else {
            breite_geben();
            QTimer::singleShot(0, gruppe, platz_machen);
        }
    });
    auto* aufbau = new QVBoxLayout(gruppe);
    QListView* liste = binder().listenfeld(logik_.fahrerreihe, "fahrerreihe");
    liste->setTextElideMode(Qt::ElideRight);
    aufbau->addWidget(liste, 1);
    QLabel* hinweis = stil::leise(binder().label(logik_.Label_liste, "Label_liste"));
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    spurzeilen_->liste_verbinden(liste);
    return gruppe;
}

/// The menu is made anew each time: a file may have gone meanwhile.
QPushButton* Form1Fenster::letzte_ergebnisse() {
    QPushButton* knopf = hoher_knopf(logik_.command_zuletzt, "command_zuletzt");
    auto* menue = new QMenu(knopf);
    QObject::connect(menue, &QMenu::aboutToShow, menue, [this, menue] {
        constexpr int rand_px = 64;  // of the menu, and the digit
        menue->clear();
        menue->setToolTipsVisible(false);
        const int platz = screen()->availableGeometry().width() - rand_px;
        const auto zeilen = logik_.letzte_zeilen();
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            const QString ganz = QString::fromStdString(zeilen[i].text);
            const QString passend = menue->fontMetrics().elidedText(ganz, Qt::ElideMiddle, platz);
            QString text = passend;
            text.replace("&", "&&").prepend(i < 9 ? QString("&%1  ").arg(i + 1) : QString());  // a digit opens it
            QAction* eines = menue->addAction(text);
            QObject::connect(  // behind the menu: its button stays pressed as long as it is not done
                eines, &QAction::triggered, this, [this, i] { logik_.letztes_oeffnen(i); }, Qt::QueuedConnection);
            eines->setEnabled(zeilen[i].da);
            eines->setToolTip(ganz);
            menue->setToolTipsVisible(menue->toolTipsVisible() || passend != ganz);
        }
    });
    knopf->setMenu(menue);
    return knopf;
}

/// The menu is made anew each time: there may be other languages by then.
QPushButton* Form1Fenster::menueknopf(befehl& element, const QString& name,
                                      const std::function<form1::auswahlmenue()>& zeilen,
                                      const std::function<void(std::size_t)>& waehlen) {
    QPushButton* knopf = binder().knopf(element, name, "schmal");
    binder().mit_kuerzel(knopf, element, false);  // its caption is what was chosen: the letters of others stay
    auto* menue = new QMenu(knopf);
    QObject::connect(menue, &QMenu::aboutToShow, menue, [this, menue, zeilen, waehlen] {
        menue->clear();
        const form1::auswahlmenue inhalt = zeilen();
        for (std::size_t i = 0; i < inhalt.zeilen.size(); ++i) {
            QAction* eine =
                menue->addAction(QString::fromStdString(inhalt.zeilen[i]), this, [waehlen, i] { waehlen(i); });
            eine->setCheckable(true);
            eine->setChecked(i == inhalt.gewaehlt);
        }
    });
    knopf->setMenu(menue);
    return knopf;
}

QPushButton* Form1Fenster::hoher_knopf(befehl& element, const QString& name) {
    QPushButton* knopf = binder().knopf(element, name);
    knopf->setMinimumHeight(stil::knopfhoehe);
    return knopf;
}

QWidget* Form1Fenster::rennbefehle() {
    auto* zeile = new QWidget;
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    QPushButton* rennen = binder().hauptknopf(logik_.Command1, "Command1");
    rennen->setMinimumSize(150, stil::knopfhoehe);
    aufbau->addWidget(rennen);
    aufbau->addWidget(hoher_knopf(logik_.Command11, "Command11"));
    aufbau->addWidget(hoher_knopf(logik_.Command3, "Command3"));
    aufbau->addWidget(hoher_knopf(logik_.command17, "command17"));
    aufbau->addWidget(hoher_knopf(logik_.Command18, "Command18"));
    aufbau->addWidget(letzte_ergebnisse());
    aufbau->addWidget(hoher_knopf(logik_.command_fortsetzen, "command_fortsetzen"));
    aufbau->addStretch();
    QPushButton* ende = hoher_knopf(logik_.Command2, "Command2");
    ende->setMinimumWidth(84);
    aufbau->addWidget(ende);
    return zeile;
}

QWidget* Form1Fenster::werkzeugbefehle() {
    auto* zeile = new QWidget;
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(hoher_knopf(logik_.Command4, "Command4"));
    aufbau->addWidget(hoher_knopf(logik_.Command8, "Command8"));
    aufbau->addWidget(hoher_knopf(logik_.Command9, "Command9"));
    aufbau->addWidget(hoher_knopf(logik_.command_tasten, "command_tasten"));
    aufbau->addStretch();
    aufbau->addWidget(binder().label(logik_.Label7, "Label7"));
    aufbau->addWidget(hoher_knopf(logik_.Command6, "Command6"));
    aufbau->addWidget(hoher_knopf(logik_.Command12, "Command12"));
    aufbau->addStretch();
    aufbau->addWidget(hoher_knopf(logik_.Command5, "Command5"));
    aufbau->addWidget(hoher_knopf(logik_.Command7, "Command7"));
    return zeile;
}

QWidget* Form1Fenster::statuszeile() {
    auto* zeile = new QWidget;
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(2, 0, 2, 0);
    aufbau->addWidget(stil::leise(binder().label(logik_.modus_label, "modus_label")));
    aufbau->addWidget(binder().knopf(logik_.command_cu, "command_cu"));
    QLabel* datei = stil::leise(binder().label(logik_.Label6, "Label6"));
    datei->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long name does not widen the window
    datei->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    aufbau->addWidget(datei, 1);
    aufbau->addWidget(binder().kasten(logik_.felder_merken, "felder_merken", true), 0, Qt::AlignVCenter);
    aufbau->addWidget(menueknopf(
        logik_.command_aussehen, "command_aussehen", [this] { return logik_.aussehensarten(); },
        [this](std::size_t i) { logik_.aussehen_waehlen(i); }));
    aufbau->addWidget(menueknopf(
        logik_.command_sprache, "command_sprache", [this] { return logik_.sprachen(); },
        [this](std::size_t i) { logik_.sprache_waehlen(i); }));
    return zeile;
}

}  // namespace tarvel::ui

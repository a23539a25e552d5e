#include "ui/leitstand_fenster.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QScreen>
#include <algorithm>
#include <array>
#include <utility>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int schrift_px = 18;
constexpr int titel_px = 15;
constexpr int kasten_px = 30;
constexpr int spurhoehe_px = 34;
constexpr QSize uebliche_groesse(960, 720);

const char* const leitstand_regeln =
    "QCheckBox { color: #f0f2f5; } QCheckBox:disabled { color: #6a707c; }"
    "QCheckBox::indicator { width: 22px; height: 22px; }"
    "QListView { background: #14171c; color: #f0f2f5; border: 1px solid #343840; }";

/// What stands in a row of a lane, from left to right, whatever is said in it, or not.
struct Spalte {
    int anteil;
    bool fett;
    Qt::AlignmentFlag seite;
};
constexpr std::array<Spalte, 7> spalten{{{1, true, Qt::AlignHCenter},
                                         {8, true, Qt::AlignLeft},
                                         {2, false, Qt::AlignRight},
                                         {3, true, Qt::AlignRight},
                                         {6, false, Qt::AlignRight},
                                         {9, true, Qt::AlignLeft},
                                         {3, false, Qt::AlignRight}}};
enum : std::size_t { spalte_platz = 2, spalte_runden = 3, spalte_rueckstand = 4, spalte_lage = 5 };
const QColor gelb_der_lage(255, 214, 10);

void einreihen(QHBoxLayout& reihe, TextAnzeige* anzeige, const Spalte& wie) {
    anzeige->setAusrichtung(wie.seite | Qt::AlignVCenter);
    QSizePolicy bleibt(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bleibt.setRetainSizeWhenHidden(true);
    anzeige->setSizePolicy(bleibt);
    reihe.addWidget(anzeige, wie.anteil);
}

/// Of a widget of the desktop.
void schrift_setzen(QWidget* widget, double skala) {
    constexpr int grundschrift_px = 15;
    QFont schrift = widget->font();
    schrift.setPixelSize(static_cast<int>(grundschrift_px * skala));
    widget->setFont(schrift);
}

void grund_geben(QWidget* widget, const QColor& farbe) {
    QPalette farben = widget->palette();
    farben.setColor(QPalette::Window, farbe);
    widget->setPalette(farben);
    widget->setAutoFillBackground(true);
}

}  // namespace

LeitstandFenster::LeitstandFenster(leitstand& logik, form2& ampel, Fensterverwaltung& verwaltung, QWidget* bahn)
    : Fenster(logik, verwaltung, bahn), logik_(logik), bahn_(logik.das_rennen().bahn1), ampel_(ampel) {
    setStyleSheet(stil::dunkle_regeln("padding: 0px 10px; min-height: 40px;") + stil::dunkle_eingaben() +
                  leitstand_regeln);
    binder().nebenher();
    auto* grund = new QWidget(this);  // stands for the whole area, takes no room itself
    grund->setAttribute(Qt::WA_TransparentForMouseEvents);
    grund->resize(0, 0);
    binder().verbinden(bahn_.hintergrund, grund, "hintergrund", [this] {
        QPalette farben = palette();
        farben.setColor(QPalette::Window, stil::farbe_von(bahn_.hintergrund.hintergrund().value_or(0)));
        farben.setColor(QPalette::WindowText, Qt::white);
        setPalette(farben);
    });
    bei_escape = [bahn] {  // for a light that is not on the screen
        if (auto* fenster = dynamic_cast<Fenster*>(bahn); fenster != nullptr && fenster->bei_escape) {
            fenster->bei_escape();
        }
    };
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setSpacing(8);
    kopf(*aufbau);
    hinweise(*aufbau);
    spuren(*aufbau);
    strafformular(*aufbau);
    verlauf(*aufbau);
    befehlszeile(*aufbau);
    resize(uebliche_groesse);
}

TextAnzeige* LeitstandFenster::gross(TextAnzeige* anzeige, int px, bool fett) {
    anzeige->setFett(fett);
    waechst([anzeige, px](double skala) { anzeige->setSchriftPx(static_cast<int>(px * skala)); });
    return anzeige;
}

void LeitstandFenster::waechst(std::function<void(double skala)> was) {
    was(1);
    wachsende_.push_back(std::move(was));
}

void LeitstandFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    const double skala =
        std::max(1.0, std::min(1.0 * width() / uebliche_groesse.width(), 1.0 * height() / uebliche_groesse.height()));
    if (std::exchange(skala_, skala) != skala) {
        for (const auto& was : wachsende_) {
            was(skala);
        }
    }
}

void LeitstandFenster::kopf(QVBoxLayout& aufbau) {
    constexpr int uhrhoehe_px = 92;
    auto* zeile = new QHBoxLayout;
    TextAnzeige* ziel = gross(binder().anzeige(bahn_.ziel_label, "ziel_label"), 26, false);
    ziel->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    ziel->setZweizeilig();
    auto* uhr = new Uhranzeige(bahn_.uhr1, 1, binder(), this);
    waechst([uhr](double skala) {
        const int hoehe = static_cast<int>(uhrhoehe_px * skala);
        uhr->setFixedHeight(hoehe);
        uhr->setSchriftPx(hoehe * 3 / 4);
    });
    TextAnzeige* pause = gross(binder().anzeige(bahn_.pausendauer, "pausendauer"), 44, true);
    pause->setFarbe(gelb_der_lage);
    zeile->addWidget(ziel, 2);
    zeile->addWidget(uhr, 5);
    zeile->addWidget(pause, 2);
    for (TextAnzeige* text : {ziel, pause}) {
        waechst([text](double skala) { text->setMinimumHeight(static_cast<int>(uhrhoehe_px * skala / 2)); });
        QSizePolicy haelt_platz = text->sizePolicy();
        haelt_platz.setRetainSizeWhenHidden(true);
        text->setSizePolicy(haelt_platz);
    }
    aufbau.addLayout(zeile);
}

void LeitstandFenster::hinweise(QVBoxLayout& aufbau) {
    TextAnzeige* alarm = gross(binder().anzeige(bahn_.geraetealarm, "geraetealarm"), 26, true);
    alarm->setFarbe(Qt::white);
    grund_geben(alarm, QColor(200, 0, 0));
    auto* rahmen = new QWidget(this);
    grund_geben(rahmen, QColor(255, 214, 0));
    TextAnzeige* geraet = gross(binder().anzeige(bahn_.cu_startlabel, "cu_startlabel"), schrift_px, true);
    geraet->setFarbe(Qt::black);
    geraet->setZweizeilig();
    waechst([geraet, alarm](double skala) {
        geraet->setMinimumHeight(static_cast<int>(2 * spurhoehe_px * skala));
        alarm->setMinimumHeight(static_cast<int>(spurhoehe_px * skala));
    });
    auto* zeile = new QHBoxLayout(rahmen);
    zeile->addWidget(geraet);
    binder().verbinden(bahn_.cu_startframe, rahmen, "cu_startframe", {});
    aufbau.addWidget(alarm);
    aufbau.addWidget(rahmen);
}

void LeitstandFenster::spuren(QVBoxLayout& aufbau) {
    auto* zeilen = new QVBoxLayout;
    zeilen->setSpacing(2);
    zeilen->addWidget(spaltentitel());
    for (const int nummer : alle_spuren) {
        zeilen->addWidget(spur(nummer));
    }
    aufbau.addLayout(zeilen);
}

QHBoxLayout* LeitstandFenster::reihe(QWidget* zeile) {
    waechst([zeile](double skala) { zeile->setFixedHeight(static_cast<int>(spurhoehe_px * skala)); });
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(12);
    return reihe;
}

QWidget* LeitstandFenster::spaltentitel() {
    auto* zeile = new QWidget(this);
    QHBoxLayout* titel = reihe(zeile);
    std::array<TextAnzeige*, spalten.size()> alle{};
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        alle.at(i) = gross(new TextAnzeige(zeile), titel_px, false);
        alle.at(i)->setFarbe(Qt::white);
        alle.at(i)->setLeise();
        einreihen(*titel, alle.at(i), spalten.at(i));
    }
    auto* ueber_den_kaesten = new QWidget(zeile);
    waechst(
        [ueber_den_kaesten](double skala) { ueber_den_kaesten->setFixedWidth(static_cast<int>(kasten_px * skala)); });
    titel->addWidget(ueber_den_kaesten);
    binder().verbinden(bahn_.Label_platz[1], zeile, "Label_platz_1", [this, alle] {
        alle[spalte_platz]->setText(QString::fromStdString(bahn_.Label_platz[1].text()));
        alle[spalte_runden]->setText(QString::fromStdString(bahn_.wort.runden));
        alle[spalte_rueckstand]->setText(QString::fromStdString(bahn_.wort.rueckstand));
    });
    return zeile;
}

QWidget* LeitstandFenster::spur(int nummer) {
    const QString kennung = "_" + QString::number(nummer);
    const QString index = "_" + QString::number(feld_index(nummer));
    auto* zeile = new QWidget(this);
    QHBoxLayout* teile = reihe(zeile);
    auto* schild = new TextAnzeige(zeile);
    schild->setText(QString::number(nummer));
    std::array<TextAnzeige*, spalten.size()> alle{
        schild,
        binder().anzeige(bahn_.namenslabel[nummer], "namenslabel" + kennung),
        binder().anzeige(bahn_.l_PosAnz.at(feld_index(nummer)), "l_PosAnz" + index),
        binder().anzeige(bahn_.zaehler[nummer], "zaehler" + kennung),
        binder().anzeige(bahn_.rueckstand[nummer], "rueckstand" + kennung),
        binder().anzeige(bahn_.lage[nummer], "lage" + kennung),
        binder().anzeige(bahn_.Label_schuld[nummer], "Label_schuld" + kennung)};
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        gross(alle.at(i), schrift_px + (spalten.at(i).fett ? 4 : 0), spalten.at(i).fett);
        einreihen(*teile, alle.at(i), spalten.at(i));
    }
    alle[spalte_lage]->setFarbe(gelb_der_lage);
    QCheckBox* haken = binder().kasten(bahn_.ch_strafzeit_hacken[nummer], "ch_strafzeit_hacken" + kennung);
    QSizePolicy bleibt = haken->sizePolicy();
    bleibt.setRetainSizeWhenHidden(true);
    haken->setSizePolicy(bleibt);
    waechst([haken](double skala) { haken->setFixedWidth(static_cast<int>(kasten_px * skala)); });
    teile->addWidget(haken, 0, Qt::AlignVCenter);
    binder().verbinden(bahn_.bahnshape[nummer], zeile, "bahnshape" + kennung, [this, schild, nummer] {
        const QColor farbe = stil::farbe_von(bahn_.bahnshape[nummer].schriftfarbe().value_or(0));
        grund_geben(schild, farbe);
        schild->setFarbe(stil::schrift_auf(farbe));
    });
    return zeile;
}

void LeitstandFenster::strafformular(QVBoxLayout& aufbau) {
    constexpr int sekunden_hoechstens = 9999;
    auto* kasten = new QWidget(this);
    auto* zeile = new QHBoxLayout(kasten);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* haken = new TextAnzeige(kasten);
    haken->setText(QString::fromUtf8("\u2611"));
    haken->setFarbe(Qt::white);
    QLineEdit* sekunden = binder().zeile(bahn_.ch_Text1, "ch_Text1");
    sekunden->setAlignment(Qt::AlignRight);
    waechst([sekunden](double skala) {
        schrift_setzen(sekunden, skala);
        sekunden->setFixedWidth(static_cast<int>(5 * schrift_px * skala));
    });
    sekunden->setValidator(new QIntValidator(0, sekunden_hoechstens, sekunden));
    QObject::connect(sekunden, &QLineEdit::returnPressed, this,
                     [this] { weiter_->setFocus(); });  // the next Enter goes on
    const auto text = [this](bezeichnung& element, const char* name) { return binder().anzeige(element, name); };
    for (QWidget* stueck : {static_cast<QWidget*>(text(bahn_.ch_Label1, "ch_Label1")), static_cast<QWidget*>(haken),
                            static_cast<QWidget*>(text(bahn_.ch_Label2, "ch_Label2")), static_cast<QWidget*>(sekunden),
                            static_cast<QWidget*>(text(bahn_.ch_Label3, "ch_Label3"))}) {
        if (auto* anzeige = dynamic_cast<TextAnzeige*>(stueck)) {
            gross(anzeige, schrift_px, false);
        }
        zeile->addWidget(stueck);
    }
    zeile->addStretch();
    binder().verbinden(bahn_.ch_strafframe, kasten, "ch_strafframe", {});
    aufbau.addWidget(kasten);
}

void LeitstandFenster::verlauf(QVBoxLayout& aufbau) {
    auto* zeile = new QHBoxLayout;
    QLabel* titel = binder().label(logik_.Label_verlauf, "Label_verlauf");
    QCheckBox* runden = binder().kasten(logik_.Check_runden, "Check_runden");
    zeile->addWidget(titel, 1);
    zeile->addWidget(runden);
    QListView* liste = binder().listenfeld(logik_.List_verlauf, "List_verlauf");
    waechst([titel, runden, liste](double skala) {
        for (QWidget* text : {static_cast<QWidget*>(titel), static_cast<QWidget*>(runden)}) {
            schrift_setzen(text, skala);
        }
        schrift_setzen(liste, skala);
    });
    liste->setSelectionMode(QAbstractItemView::NoSelection);
    liste->setFocusPolicy(Qt::NoFocus);
    liste->setMinimumHeight(3 * spurhoehe_px);
    aufbau.addLayout(zeile);
    aufbau.addWidget(liste, 1);
}

void LeitstandFenster::befehlszeile(QVBoxLayout& aufbau) {
    auto* kasten = new QWidget(this);  // takes the focus behind a press that must not reach the next command
    auto* zeile = new QHBoxLayout(kasten);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(12);
    start_ = binder().hauptknopf(bahn_.Command1, "Command1");
    einfahren_ = binder().hauptknopf(bahn_.Command6, "Command6");
    weiter_ = binder().knopf(bahn_.Command3, "Command3");
    for (QPushButton* knopf : {start_, einfahren_, weiter_, binder().knopf(bahn_.Command4, "Command4"),
                               binder().knopf(bahn_.Command_protokoll, "Command_protokoll")}) {
        zeile->addWidget(knopf);
    }
    QPushButton* startabbruch = binder().knopf(ampel_.abbrampel, "abbrampel");
    zeile->addWidget(startabbruch);
    TextAnzeige* zu_frueh = gross(binder().anzeige(ampel_.Label_fruehstart, "Label_fruehstart"), schrift_px, true);
    zu_frueh->setFarbe(gelb_der_lage);
    zu_frueh->setZweizeilig();
    waechst(
        [zu_frueh](double skala) { zu_frueh->setMinimumHeight(static_cast<int>((kasten_px + schrift_px) * skala)); });
    zu_frueh->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    zeile->addWidget(zu_frueh, 1);
    zeile->addStretch();
    zeile->addWidget(binder().knopf_ohne_kuerzel(bahn_.Command2, "Command2"));
    for (QPushButton* knopf : kasten->findChildren<QPushButton*>()) {
        waechst([knopf](double skala) { schrift_setzen(knopf, skala); });
    }
    binder().verbinden(bahn_.Frame1, kasten, "Frame1", {});
    aufbau.addWidget(kasten);
}

void LeitstandFenster::aufschlagen() {
    const bool war_zu = !isVisible();
    if (war_zu) {
        const QWidget* haupt = parentWidget()->parentWidget() != nullptr ? parentWidget()->parentWidget() : this;
        const QRect platz = haupt->screen()->availableGeometry();
        const QSize groesse = uebliche_groesse.boundedTo(platz.size());
        setGeometry(QRect(platz.center() - QPoint(groesse.width(), groesse.height()) / 2, groesse));
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    if (war_zu) {  // the race window had the wish for the focus while this one was not there yet
        QPushButton* erster = einfahren_->isVisible() ? einfahren_ : start_;
        erster->setFocus(Qt::OtherFocusReason);
    }
    raise();
    activateWindow();
}

}  // namespace tarvel::ui

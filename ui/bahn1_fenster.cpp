#include "ui/bahn1_fenster.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "race/spurgeometrie.h"
#include "ui/bildanzeige.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

using f = fenster_teil;

constexpr int sekunden_max = 9999;
constexpr std::array<f, 5> befehle{f::Command1, f::Command6, f::Command3, f::Command4, f::Command2};

}  // namespace

Bahn1Fenster::Bahn1Fenster(rennen& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik.fenster, verwaltung, eltern), logik_(logik) {
    const auto unsichtbar = [this] {  // stands for the whole area, takes no room itself
        auto* grund = new QWidget(this);
        grund->setAttribute(Qt::WA_TransparentForMouseEvents);
        grund->resize(0, 0);
        return grund;
    };
    binder().verbinden(logik.bahn1.hintergrund, unsichtbar(), "hintergrund", [this, &logik] {
        QPalette dunkel = palette();
        dunkel.setColor(QPalette::Window, stil::farbe_von(logik.bahn1.hintergrund.hintergrund().value_or(0)));
        dunkel.setColor(QPalette::WindowText, Qt::white);
        setPalette(dunkel);
    });
    kopf();
    for (const int spur : alle_spuren) {
        bloecke_.push_back(new Spurblock(
            logik.bahn1, spur, binder(),
            [&logik](const std::string& datei) { return logik.umgebung.ablage.pfad(datei); }, this));
    }
    strafformular();
    lagen();
    geraetehinweis();
    befehlszeile();
    schuldtasten();
    geraetealarm();
    nachtabschaltung();
    umzug_.setSingleShot(true);
    QObject::connect(&umzug_, &QTimer::timeout, this, [this] {
        if (bei_umzug && isVisible()) {
            bei_umzug();
        }
    });
    QObject::connect(qApp, &QGuiApplication::screenRemoved, this, [this] { neu_verteilen(); });
    QObject::connect(qApp, &QGuiApplication::screenAdded, this, [this] { neu_verteilen(); });
    setMinimumSize(640, 480);
    resize(1280, 1024);
    binder().verbinden(logik.bahn1.ansicht, unsichtbar(), "ansicht", [this] { anordnen(); });
}

void Bahn1Fenster::kopf() {
    bahn1& bahn = logik_.bahn1;
    for (const auto& [name, element, widget_name] :
         {std::tuple<f, bezeichnung&, const char*>{f::ziel_label, bahn.ziel_label, "ziel_label"},
          {f::Label_naechstesrennen, bahn.Label_naechstesrennen, "Label_naechstesrennen"},
          {f::Label5, bahn.Label5, "Label5"},
          {f::bestzeit_gesamt, bahn.bestzeit_gesamt, "bestzeit_gesamt"}}) {
        TextAnzeige* text = binder().anzeige(element, widget_name);
        text->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
        teil(name) = text;
    }
    for (const f name : {f::Label5, f::ziel_label}) {
        static_cast<TextAnzeige*>(teil(name))->setZweizeilig();
    }
    TextAnzeige* nachlauf = binder().anzeige(bahn.nachlauflabel, "nachlauflabel");
    nachlauf->setFett(true);
    teil(f::nachlauflabel) = nachlauf;
    teil(f::uhrframe1) = new Uhranzeige(bahn.uhr1, 1, binder(), this);
    teil(f::uhrframe2) = new Uhranzeige(bahn.uhr2, 2, binder(), this);
    restrunden();
    const auto pfad = [this](const std::string& datei) { return logik_.umgebung.ablage.pfad(datei); };
    teil(f::logobild) = binder().bildanzeige(bahn.logobild, "logobild", pfad);
    teil(f::wrpic1) = binder().bildanzeige(bahn.wrpic1, "wrpic1", pfad);
    teil(f::wrpic2) = binder().bildanzeige(bahn.wrpic2, "wrpic2", pfad);
}

void Bahn1Fenster::befehlszeile() {
    bahn1& bahn = logik_.bahn1;
    auto* zeile = new QWidget(this);
    zeile->setStyleSheet(stil::dunkle_regeln("padding: 0px 4px; min-height: 0px;"));
    teil(f::Frame1) = zeile;
    teil(f::Command1) = binder().hauptknopf(bahn.Command1, "Command1");
    teil(f::Command6) = binder().hauptknopf(bahn.Command6, "Command6");
    teil(f::Command3) = binder().knopf(bahn.Command3, "Command3");
    teil(f::Command4) = binder().knopf(bahn.Command4, "Command4");
    teil(f::Command2) = binder().knopf_ohne_kuerzel(bahn.Command2, "Command2");
    TextAnzeige* werbung = binder().anzeige(bahn.werbe_label, "werbe_label");
    werbung->setLeise();
    teil(f::werbe_label) = werbung;
    zeile->installEventFilter(this);
    constexpr int zweiter_druck_ms = 800;
    startfokus_.setSingleShot(true);
    startfokus_.setInterval(zweiter_druck_ms);
    QObject::connect(&startfokus_, &QTimer::timeout, this, [this] {
        if (focusWidget() == teil(f::Frame1) && teil(f::Command1)->isEnabled()) {
            teil(f::Command1)->setFocus(Qt::OtherFocusReason);
        }
    });
    QWidget* vorher = nullptr;
    for (const f name : {f::Command1, f::Command6, f::Command3, f::Command4, f::werbe_label, f::Command2}) {
        teil(name)->setParent(zeile);
        if (vorher != nullptr) {
            setTabOrder(vorher, teil(name));
        }
        vorher = teil(name);
    }
    protokoll_ = binder().knopf(bahn.Command_protokoll, "Command_protokoll");
    protokoll_->setParent(zeile);
    protokoll_->installEventFilter(this);
    setTabOrder(vorher, protokoll_);
    binder().verbinden(bahn.Frame1, zeile, "Frame1", [this] { befehle_zeigen(); });
}

void Bahn1Fenster::schuldtasten() {
    for (const int spur : alle_spuren) {
        auto* taste = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + spur)), this);
        taste->setAutoRepeat(false);
        QObject::connect(taste, &QShortcut::activated, this,
                         [&kasten = logik_.bahn1.ch_strafzeit_hacken[spur]] { kasten.umschalten(); });
    }
}

void Bahn1Fenster::strafformular() {
    bahn1& bahn = logik_.bahn1;
    auto* kasten = new QWidget(this);
    kasten->setStyleSheet(stil::dunkle_regeln("padding: 0px 4px; min-height: 0px;") + stil::dunkle_eingaben());
    teil(f::ch_strafframe) = kasten;
    auto* zeile = new QHBoxLayout(kasten);
    zeile->setContentsMargins(0, 0, 0, 0);
    TextAnzeige* vorn = binder().anzeige(bahn.ch_Label1, "ch_Label1");
    auto* haken = new TextAnzeige(kasten);
    haken->setText(QString::fromUtf8("\u2611"));
    TextAnzeige* mitte = binder().anzeige(bahn.ch_Label2, "ch_Label2");
    sekunden_ = binder().zeile(bahn.ch_Text1, "ch_Text1");
    sekunden_->setAlignment(Qt::AlignRight);
    sekunden_->setValidator(new QIntValidator(0, sekunden_max, sekunden_));
    QObject::connect(sekunden_, &QLineEdit::returnPressed, this, [this] { teil(f::Command3)->setFocus(); });
    TextAnzeige* hinten = binder().anzeige(bahn.ch_Label3, "ch_Label3");
    zeile->addStretch();
    for (QWidget* stueck : {static_cast<QWidget*>(vorn), static_cast<QWidget*>(haken), static_cast<QWidget*>(mitte),
                            static_cast<QWidget*>(sekunden_), static_cast<QWidget*>(hinten)}) {
        zeile->addWidget(stueck);
    }
    formular_ = {vorn, haken, mitte, hinten};
    zeile->addStretch();
    binder().verbinden(bahn.ch_strafframe, kasten, "ch_strafframe", [this] { befehle_zeigen(); });
}

void Bahn1Fenster::geraetehinweis() {
    bahn1& bahn = logik_.bahn1;
    auto* hinweis = new QWidget(this);
    teil(f::cu_startframe) = hinweis;
    hinweis->setAutoFillBackground(true);
    QPalette gelb;
    gelb.setColor(QPalette::Window, QColor(255, 214, 0));
    hinweis->setPalette(gelb);
    hinweistext_ = binder().anzeige(bahn.cu_startlabel, "cu_startlabel");
    hinweistext_->setFett(true);
    hinweistext_->setFarbe(Qt::black);
    hinweistext_->setZweizeilig();
    auto* zeile = new QHBoxLayout(hinweis);
    zeile->setContentsMargins(12, 1, 12, 1);  // a low line needs its height for the letters
    zeile->addWidget(hinweistext_);
    binder().verbinden(bahn.cu_startframe, hinweis, "cu_startframe", [this] { hinweis_anordnen(); });
}

void Bahn1Fenster::hinweis_anordnen() {
    const bool pause = logik_.zustand.chaos_aktiv;
    const ansicht_geometrie geometrie = aufteilung();
    const rechteck& ort = geometrie.fenster[pause ? f::cu_startframe : f::uhrframe1].ort;
    teil(f::cu_startframe)->setGeometry(ort.x, ort.y, ort.breite, ort.hoehe);
    hinweistext_->setSchriftPx(geometrie.fenster[f::cu_startframe].schrift_px);
    teil(f::cu_startframe)->raise();
    pause_anordnen();
}

void Bahn1Fenster::nachtabschaltung() {
    nacht_ = new TextAnzeige(this);
    nacht_->setAutoFillBackground(true);
    nacht_->setFarbe(stil::nachtschrift);
    nacht_->setAusrichtung(Qt::AlignHCenter | Qt::AlignBottom);
    QPalette schwarz;
    schwarz.setColor(QPalette::Window, Qt::black);
    nacht_->setPalette(schwarz);
    binder().verbinden(logik_.bahn1.Nachtabschaltung, nacht_, "Nachtabschaltung", [this] {
        nacht_->setText(nachthinweis());
        nacht_anordnen();
        nacht_->raise();
        alarm_->raise();
    });
}

void Bahn1Fenster::nacht_anordnen() {
    nacht_->setGeometry(rect());
    nacht_->setSchriftPx(lesbar_px(height()));
}

QString Bahn1Fenster::nachthinweis() const {
    return QString::fromStdString(logik_.bahn1.Nachtabschaltung.text());
}

void Bahn1Fenster::geraetealarm() {
    alarm_ = binder().anzeige(logik_.bahn1.geraetealarm, "geraetealarm");
    alarm_->setParent(this);
    alarm_->setAttribute(Qt::WA_TransparentForMouseEvents);
    alarm_->setAutoFillBackground(true);
    QPalette rot;
    rot.setColor(QPalette::Window, QColor(200, 0, 0));
    alarm_->setPalette(rot);
    alarm_->setFett(true);
    alarm_->setFarbe(Qt::white);
    alarm_->setRahmen(Qt::white);
    alarm_->setContentsMargins(12, 6, 12, 6);  // clear of the frame
    constexpr int zeilen = 3;
    alarm_->setMehrzeilig(zeilen);
}

void Bahn1Fenster::alarm_anordnen(const rechteck& uhren) {
    // over what is driven for, which everybody knows: the race goes on with the keys, and laps and times are looked at
    alarm_->setGeometry(uhren.y, uhren.y, uhren.x - 2 * uhren.y, uhren.hoehe);
    alarm_->setSchriftPx(height() / 14);
    alarm_->raise();
}

void Bahn1Fenster::licht_der_pause(bool da) {
    licht_der_pause_ = da && logik_.umgebung.ist_zeitrennen();  // else both clocks show the same
    anordnen();
}

QRect Bahn1Fenster::licht_ort() const {
    const rechteck ort = aufteilung().licht_der_pause;
    return {mapToGlobal(QPoint(ort.x, ort.y)), QSize(ort.breite, ort.hoehe)};
}

QRect Bahn1Fenster::neben_den_namen() const {
    const ansicht_geometrie g = aufteilung();
    QRect alle;
    for (const rechteck& block : g.block) {
        alle |= QRect(block.x, block.y, block.breite, block.hoehe);
    }
    alle.setLeft(alle.left() + g.spur[spur_teil::namenslabel].ort.rechts());
    const bool zeilen = logik_.bahn1.zeilenansicht() && alle.width() > width() / 2;  // a single one has it on top
    return zeilen && isVisible() ? QRect(mapToGlobal(alle.topLeft()), alle.size()) : QRect();
}

QRect Bahn1Fenster::unter_den_namen() const {
    const ansicht_geometrie g = aufteilung();
    const auto block = std::find_if(g.block.begin(), g.block.end(), [](const rechteck& r) { return !r.leer(); });
    if (block == g.block.end() || !isVisible()) {
        return {};
    }
    const int oben = block->y + g.spur[spur_teil::namenslabel].ort.unten();
    return {mapToGlobal(QPoint(0, oben)), QSize(width(), height() - oben)};
}

ansicht_geometrie Bahn1Fenster::aufteilung() const {
    ansicht_inhalt inhalt = logik_.bahn1.ansicht.inhalt();
    inhalt.licht_der_pause = licht_der_pause_;
    inhalt.pause = mit_pause_;
    inhalt.befehle_woanders = befehle_woanders_;
    ansicht_geometrie geometrie = ansicht_aufteilen(inhalt, width(), height());
    bloecke_ordnen(geometrie, ordnung_);
    return geometrie;
}

void Bahn1Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    nacht_anordnen();
    anordnen();
    umgezogen();
}

void Bahn1Fenster::anordnen() {
    const ansicht_geometrie geometrie = aufteilung();
    bloecke_anordnen(geometrie, false);
    for (std::size_t i = 0; i < teile_.size(); ++i) {
        const auto name = static_cast<f>(i);
        const platz& ort = geometrie.fenster[name];
        QWidget* widget = teil(name);
        widget->setGeometry(ort.ort.x, ort.ort.y, ort.ort.breite, ort.ort.hoehe);
        if (auto* text = dynamic_cast<TextAnzeige*>(widget)) {
            text->setSchriftPx(ort.schrift_px);
        } else if (auto* uhr = dynamic_cast<Uhranzeige*>(widget)) {
            uhr->setSchriftPx(ort.schrift_px);
        }
    }
    if (!befehle_woanders_) {
        befehle_beschriften(geometrie.fenster[f::Command1].schrift_px);
        protokollknopf_anordnen(geometrie.fenster[f::werbe_label].ort);
        const platz& formular = geometrie.fenster[f::ch_strafframe];
        formular_beschriften(formular.schrift_px, formular.ort);
    }
    restrunden_anordnen();
    folge_anordnen(geometrie.fenster);
    hinweis_anordnen();
    alarm_anordnen(geometrie.licht_der_pause);
    update();  // between the blocks the last layout may still be seen
}

void Bahn1Fenster::protokollknopf_anordnen(const rechteck& werbung) {
    const QRect befehl = teil(f::Command3)->geometry();
    const int weiter = teil(f::Command4)->x() - befehl.x();
    const bool daneben = werbung.breite > weiter + befehl.width();
    const int x = daneben ? werbung.x : teil(f::Command1)->x();  // a start that nobody can give in a pause
    protokoll_->setGeometry(x, befehl.y(), befehl.width(), befehl.height());
    protokoll_->setFont(teil(f::Command3)->font());
    protokoll_->raise();
    const int weg = daneben && !protokoll_->isHidden() ? weiter : 0;
    constexpr int schmal = 2;  // of its height, there is nothing to be read
    const int breite = werbung.breite > schmal * werbung.hoehe ? werbung.breite - weg : 0;
    teil(f::werbe_label)->setGeometry(werbung.x + weg, werbung.y, breite, werbung.hoehe);
}

bool Bahn1Fenster::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool kommt_oder_geht = ereignis->type() == QEvent::ShowToParent || ereignis->type() == QEvent::HideToParent;
    if (ziel == teil(f::Frame1) && ereignis->type() == QEvent::FocusIn) {
        startfokus_.start();
    }
    if (ziel == protokoll_ && kommt_oder_geht && !befehle_woanders_) {
        protokollknopf_anordnen(aufteilung().fenster[f::werbe_label].ort);
    }
    return Fenster::eventFilter(ziel, ereignis);
}

void Bahn1Fenster::formular_beschriften(int schrift_px, const rechteck& ort) {
    constexpr int kleinste_px = 8;
    QLayout* zeile = teil(f::ch_strafframe)->layout();
    int px = schrift_px + 1;
    do {
        --px;
        zeile->setSpacing(px / 4 + 1);  // a blank between the words
        for (TextAnzeige* stueck : formular_) {
            stueck->setSchriftPx(px);
            stueck->setFarbe(formular_.front()->farbe());  // the tick between the words has none of its own
        }
        QFont schrift = sekunden_->font();
        schrift.setPixelSize(px);
        sekunden_->setFont(schrift);
        sekunden_->setFixedSize(px * 4, ort.hoehe);
    } while (zeile->sizeHint().width() > ort.breite && px > kleinste_px);
}

void Bahn1Fenster::befehle_beschriften(int schrift_px) {
    // one size for all, small enough for the longest caption: a pause changes captions, and nothing else may change
    constexpr int rand_px = 20;
    const bahn1::worte& wort = logik_.bahn1.wort;
    QFont schrift = teil(f::Command1)->font();
    schrift.setBold(true);
    schrift.setPixelSize(schrift_px);
    const QFontMetrics masse(schrift);
    double anteil = 1;
    const auto passend = [&](f name, const QString& text) {
        const double platz = std::max(teil(name)->width() - rand_px, 1);
        anteil = std::min(anteil, platz / std::max(masse.horizontalAdvance(text), 1));
    };
    for (const std::string* text : {&wort.pause, &wort.pause_wieder, &wort.weiter}) {
        passend(f::Command3, QString::fromStdString(*text));
    }
    for (const f name : befehle) {
        if (teil(name)->width() > 0) {
            passend(name, static_cast<QPushButton*>(teil(name))->text());
        }
    }
    constexpr int kleinste_px = 8;
    schrift.setPixelSize(std::max(kleinste_px, static_cast<int>(schrift_px * anteil)));
    schrift.setBold(false);
    for (const f name : befehle) {
        teil(name)->setFont(schrift);
    }
}

}  // namespace tarvel::ui

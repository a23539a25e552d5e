#include "ui/binder.h"

#include <QAbstractItemView>
#include <QColorDialog>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringList>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/dateien.h"
#include "ui/eingabefelder.h"
#include "ui/frageknopf.h"
#include "ui/listenmodell.h"
#include "ui/namensergaenzung.h"
#include "ui/namenszeile.h"
#include "ui/stil.h"
#include "ui/umbruchkasten.h"

namespace tarvel::ui {
namespace {

constexpr int bildlaufleiste_px = 28;

QString als_text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

template <class Widget>
void text_nachfuehren(Widget* widget, const steuerelement& element) {
    const QString text = als_text(element.text());
    if (widget->text() != text) {
        widget->setText(text);
    }
}

/// To set it anew, though it is the same, takes the caret to the end of what is being typed.
void laenge_nachfuehren(QLineEdit* zeile, const eingabe_element& element) {
    constexpr int ohne_grenze = 32767;
    const int laenge = element.laenge_max() > 0 ? element.laenge_max() : ohne_grenze;
    if (zeile->maxLength() != laenge) {
        zeile->setMaxLength(laenge);
    }
}

/// What is too long for a field is not swallowed unsaid.
void kuerzung_sagen(QLineEdit* zeile) {
    QObject::connect(zeile, &QLineEdit::inputRejected, zeile, [zeile] {
        if (zeile->text().size() >= zeile->maxLength()) {
            QToolTip::showText(zeile->mapToGlobal(QPoint(0, zeile->height())),
                               QString("max. %1").arg(zeile->maxLength()), zeile);
        }
    });
}

}  // namespace

class Binder::Bindung final : public steuer_beobachter, public Abgleich {
public:
    Bindung(Bildtakt& takt, steuerelement& element, QWidget* widget, bool nebenher, std::function<void()> abgleich)
        : takt_(takt), element_(element), widget_(widget), nebenher_(nebenher), abgleich_(std::move(abgleich)) {
        element_.beobachten(*this);
        werte_nachfuehren();
        if (fokus_nachfuehren()) {
            element_.fokus_setzen();  // once more when the window stands: a frame that takes the widget in loses it
        }
    }
    Bindung(const Bindung&) = delete;
    Bindung& operator=(const Bindung&) = delete;
    ~Bindung() override {
        element_.nicht_mehr_beobachten(*this);
        takt_.vergessen(this);
    }

    void geaendert() override {
        if (!std::exchange(vorgemerkt_, true)) {
            takt_.vormerken(this);
        }
    }

    void abgleichen() override {
        vorgemerkt_ = false;
        werte_nachfuehren();
        fokus_nachfuehren();
    }

private:
    void werte_nachfuehren() {
        widget_->setEnabled(element_.aktiviert());
        widget_->setVisible(element_.sichtbar());
        hinweise_nachfuehren();
        if (abgleich_) {
            abgleich_();
        }
    }

    /// True if it was to have the focus.
    bool fokus_nachfuehren() {
        if ((nebenher_ && !widget_->isVisible()) || !element_.fokuswunsch_abholen()) {
            return false;
        }
        widget_->setFocus(Qt::OtherFocusReason);
        const auto* wahl = qobject_cast<QComboBox*>(widget_);
        if (auto* zeile = wahl != nullptr ? wahl->lineEdit() : qobject_cast<QLineEdit*>(widget_)) {
            zeile->selectAll();  // what is typed next replaces the old text
        }
        return true;
    }

    void hinweise_nachfuehren() {  // they hardly ever change, and a clock comes here with every frame
        if (ansage_ != element_.ansage()) {
            ansage_ = element_.ansage();
            widget_->setAccessibleName(als_text(ansage_));
        }
        if (tipp_ != element_.tipp()) {
            tipp_ = element_.tipp();
            const QString tipp = als_text(tipp_);
            constexpr qsizetype eine_zeile = 80;  // only rich text is wrapped
            const bool umbrechen = tipp.size() > eine_zeile || Qt::mightBeRichText(tipp);
            widget_->setToolTip(umbrechen ? Qt::convertFromPlainText(tipp, Qt::WhiteSpaceNormal) : tipp);
        }
    }

    Bildtakt& takt_;
    steuerelement& element_;
    QWidget* widget_;
    bool nebenher_;
    std::function<void()> abgleich_;
    std::string ansage_;
    std::string tipp_;
    bool vorgemerkt_ = false;
};

Binder::Binder(QString fenster, Bildtakt& takt, Bildleser& bilder, QWidget* eltern)
    : takt_(takt), bilder_(bilder), fenster_(std::move(fenster)), eltern_(eltern) {}

Binder::~Binder() = default;

void Binder::verbinden(steuerelement& element, QWidget* widget, const QString& name, std::function<void()> abgleich) {
    widget->setObjectName(fenster_ + "." + name);
    bindungen_.push_back(std::make_unique<Bindung>(takt_, element, widget, nebenher_, std::move(abgleich)));
}

void Binder::skala(double px_je_einheit) {
    if (px_je_einheit == skala_) {
        return;
    }
    skala_ = px_je_einheit;
    for (const auto& schrift : schriften_) {
        schrift();
    }
}

QLabel* Binder::label(bezeichnung& element, const QString& name) {
    auto* widget = new QLabel(eltern_);
    widget->setTextFormat(Qt::PlainText);
    verbinden(element, widget, name, [&element, widget] { text_nachfuehren(widget, element); });
    return widget;
}

TextAnzeige* Binder::anzeige(steuerelement& element, const QString& name) {
    auto* widget = new TextAnzeige(eltern_);
    std::optional<QColor> eigene;  // while the control has set another
    verbinden(element, widget, name, [&element, widget, eigene]() mutable {
        widget->setText(als_text(element.davor() + element.text()));
        if (element.schriftfarbe()) {
            eigene = eigene.value_or(widget->farbe());
            widget->setFarbe(stil::farbe_von(*element.schriftfarbe()));
        } else if (eigene) {
            widget->setFarbe(*std::exchange(eigene, std::nullopt));
        }
    });
    return widget;
}

TextAnzeige* Binder::anzeige(steuerelement& element, const QString& name, double entwurf) {
    TextAnzeige* widget = anzeige(element, name);
    schriften_.emplace_back(
        [this, widget, entwurf] { widget->setSchriftPx(static_cast<int>(std::lround(entwurf * skala_))); });
    schriften_.back()();
    return widget;
}

QPushButton* Binder::knopf(befehl& element, const QString& name, const char* rolle) {
    auto* widget = new QPushButton(eltern_);
    if (rolle != nullptr) {
        widget->setProperty("rolle", rolle);  // before the style looks at the widget for the first time
    }
    widget->setAutoDefault(true);
    QObject::connect(widget, &QPushButton::clicked, widget, [&element] { element.klicken(); });
    QPointer<Frageknopf> frage;  // most commands never ask
    verbinden(element, widget, name, [this, &element, widget, frage]() mutable {
        const QString text = widget->property("ohne_kuerzel").toBool()
                                 ? als_text(element.text())
                                 : kuerzel_.vergeben(widget, als_text(element.text()));
        if (widget->text() != text) {
            widget->setText(text);
        }
        if (frage == nullptr && !element.frage().empty()) {
            frage = new Frageknopf(element, *widget);
        }
        if (frage != nullptr) {
            frage->fragen(als_text(element.frage()));
        }
    });
    return widget;
}

QPushButton* Binder::knopf_ohne_kuerzel(befehl& element, const QString& name) {
    QPushButton* widget = knopf(element, name);
    mit_kuerzel(widget, element, false);
    return widget;
}

void Binder::mit_kuerzel(QPushButton* knopf, const befehl& element, bool ja) {
    knopf->setProperty("ohne_kuerzel", !ja);
    if (ja) {
        knopf->setText(kuerzel_.vergeben(knopf, als_text(element.text())));
    } else {
        kuerzel_.freigeben(knopf);
        knopf->setText(als_text(element.text()));
    }
}

QGroupBox* Binder::gruppe(rahmen& element, const QString& name) {
    auto* widget = new QGroupBox(eltern_);
    verbinden(element, widget, name, [&element, widget] { widget->setTitle(als_text(element.text())); });
    return widget;
}

QRadioButton* Binder::wahlknopf(haken& element, const QString& name) {
    auto* widget = new QRadioButton(eltern_);
    QObject::connect(widget, &QRadioButton::clicked, widget, [&element] {
        if (!element.gesetzt()) {
            element.umschalten();
        }
    });
    verbinden(element, widget, name, [&element, widget] {
        text_nachfuehren(widget, element);
        widget->setChecked(element.gesetzt());
    });
    return widget;
}

QPushButton* Binder::farbknopf(farbfeld& element, const QString& name) {
    auto* widget = new Farbknopf(eltern_);
    widget->setAutoDefault(true);
    QObject::connect(widget, &QPushButton::clicked, widget, [&element, widget] {
        auto* dialog = new QColorDialog(stil::farbe_von(element.wert()), widget->window());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QColorDialog::colorSelected, widget,
                         [&element](const QColor& gewaehlt) { element.waehlen(stil::zahl_von(gewaehlt)); });
        dialog->open();
    });
    verbinden(element, widget, name, [&element, widget] { widget->setFarbe(stil::farbe_von(element.wert())); });
    return widget;
}

void Binder::fenstertitel(rahmen& element) {
    auto* traeger = new QWidget(eltern_);  // stands for the window, takes no room
    traeger->resize(0, 0);
    verbinden(element, traeger, "titel", [this, &element] { eltern_->setWindowTitle(als_text(element.text())); });
}

QLineEdit* Binder::zeile(feld& element, const QString& name) {
    auto* widget = new Eingabezeile(eltern_);
    kuerzung_sagen(widget);
    QObject::connect(widget, &QLineEdit::textEdited, widget,
                     [&element](const QString& text) { element.eingeben(text.toStdString()); });
    verbinden(element, widget, name, [&element, widget] {
        laenge_nachfuehren(widget, element);
        text_nachfuehren(widget, element);
        if (!widget->hasFocus()) {
            widget->setCursorPosition(0);  // a long text is read from its beginning
        }
    });
    return widget;
}

QCheckBox* Binder::kasten(haken& element, const QString& name, bool buchstabe) {
    auto* widget = new UmbruchKasten(eltern_);
    QObject::connect(widget, &QCheckBox::clicked, widget, [&element] { element.umschalten(); });
    verbinden(element, widget, name, [this, &element, widget, buchstabe] {
        const QString text = buchstabe ? kuerzel_.vergeben(widget, als_text(element.text())) : als_text(element.text());
        if (widget->text() != text) {
            widget->setText(text);
        }
        widget->setChecked(element.gesetzt());
    });
    return widget;
}

QComboBox* Binder::auswahlfeld(auswahl& element, const QString& name) {
    auto* widget = new Auswahlfeld(eltern_);
    widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget->setMinimumContentsLength(6);
    widget->setInsertPolicy(QComboBox::NoInsert);
    const auto eingeben = [&element](const QString& text) { element.eingeben(text.toStdString()); };
    QObject::connect(widget, &QComboBox::activated, widget, [&element, widget, eingeben](int platz) {
        if (element.frei()) {
            eingeben(widget->itemText(platz));
        } else {
            element.waehlen(platz);
        }
    });
    QObject::connect(widget, &QComboBox::editTextChanged, widget, eingeben);
    verbinden(element, widget, name, [&element, widget] {
        const QSignalBlocker still(widget);
        if (widget->isEditable() != element.frei()) {
            if (element.frei()) {
                widget->setLineEdit(new Namenszeile(widget));
            } else {
                widget->setEditable(false);
            }
            widget->setCompleter(nullptr);  // a name stays as it is typed, also where an entry begins with it
            if (element.frei()) {
                kuerzung_sagen(widget->lineEdit());
                Namensergaenzung::anbieten(*widget, element);
            }
        }
        if (element.frei()) {
            laenge_nachfuehren(widget->lineEdit(), element);
        }
        QStringList eintraege;
        for (const std::string& eintrag : element.eintraege()) {
            eintraege << als_text(eintrag);
        }
        QStringList vorhanden;
        for (int i = 0; i < widget->count(); ++i) {
            vorhanden << widget->itemText(i);
        }
        QStringList zusaetze;
        for (const std::string& zusatz : element.zusaetze()) {
            zusaetze << als_text(zusatz);
        }
        if (vorhanden != eintraege || widget->zusaetze() != zusaetze) {
            widget->clear();
            widget->addItems(eintraege);
            widget->setZusaetze(zusaetze);
            widget->view()->setMinimumWidth(widget->view()->sizeHintForColumn(0) + bildlaufleiste_px);
        }
        const QString text = als_text(element.text());
        if (!element.frei()) {
            widget->setCurrentIndex(element.platz());
        } else if (widget->currentText() != text) {
            widget->setCurrentIndex(widget->findText(text));
            widget->setEditText(text);
            widget->lineEdit()->setCursorPosition(0);
        } else if (!widget->hasFocus()) {
            widget->lineEdit()->setCursorPosition(0);  // a long text is read from its beginning
        }
    });
    return widget;
}

QListView* Binder::listenfeld(liste& element, const QString& name, Qt::Alignment ausrichtung) {
    auto* widget = new Listenfeld(eltern_);
    widget->setUniformItemSizes(true);
    widget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget->setTextElideMode(Qt::ElideNone);
    auto* modell = new ListenModell(element, widget);
    modell->setAusrichtung(ausrichtung);
    widget->setModel(modell);
    // not the current row: the focus alone means none
    QObject::connect(widget->selectionModel(), &QItemSelectionModel::selectionChanged, widget, [&element, widget] {
        const QModelIndexList gewaehlt = widget->selectionModel()->selectedIndexes();
        const QModelIndex markiert = widget->model()->index(element.markiert(), 0);
        if (!gewaehlt.isEmpty()) {
            element.auswaehlen(gewaehlt.front().row());
        } else if (markiert.isValid()) {  // a click beside the rows
            widget->selectionModel()->select(markiert, QItemSelectionModel::Select);
        }
    });
    // the Enter key as well as a double click
    QObject::connect(widget, &QListView::activated, widget,
                     [&element](const QModelIndex& zeile) { element.doppelklicken(zeile.row()); });
    verbinden(element, widget, name, [&element, widget, modell] {
        const QSignalBlocker still(widget->selectionModel());
        modell->abgleichen();
        if (element.schriftfarbe()) {
            QPalette palette = widget->palette();
            palette.setColor(QPalette::Text, stil::farbe_von(*element.schriftfarbe()));
            widget->setPalette(palette);
        }
        const QModelIndex zeile = modell->index(element.markiert());
        const bool hervorgehoben = widget->currentIndex() == zeile && widget->selectionModel()->isSelected(zeile);
        if (zeile.isValid() && !hervorgehoben) {  // the focus alone makes a row current without selecting it
            widget->setCurrentIndex(zeile);
            widget->scrollTo(zeile);
            widget->viewport()->update();
        } else if (!zeile.isValid() && widget->selectionModel()->hasSelection()) {
            widget->selectionModel()->clear();  // the row current as well, so that it can be selected again
            widget->viewport()->update();
        }
    });
    return widget;
}

QListView* Binder::protokollfeld(liste& element, const QString& name) {
    QListView* widget = listenfeld(element, name);
    widget->setUniformItemSizes(false);  // a reason may be longer than the list is wide
    widget->setWordWrap(true);
    widget->setResizeMode(QListView::Adjust);
    QObject::connect(widget->model(), &QAbstractItemModel::rowsInserted, widget, &QListView::scrollToBottom,
                     Qt::QueuedConnection);
    return widget;
}

}  // namespace tarvel::ui

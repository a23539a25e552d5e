#include "tests/ui/textmasse.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <typeinfo>

#include "ui/textanzeige.h"
#include "ui/umbruchkasten.h"

namespace tarvel::test {
namespace {

/// What a widget shows, and the room that it has and wants for that.
struct Textmass {
    QString text;
    QSize platz;
    QSize bedarf;
};

QSize einzeilig(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// `text` in lines no wider than this.
QSize umbrochen(const QWidget& widget, int breite, const QString& text) {
    constexpr int unendlich = 10000;
    return widget.fontMetrics()
        .boundingRect(QRect(0, 0, breite, unendlich), Qt::TextWordWrap | Qt::TextShowMnemonic, text)
        .size();
}

Textmass mass(const QLabel& label) {
    const QSize platz = label.contentsRect().size() - QSize(2 * label.margin(), 2 * label.margin());
    if (label.text().isEmpty()) {
        return {};
    }
    if (Qt::mightBeRichText(label.text()) && label.textFormat() != Qt::PlainText) {
        return {label.text(), label.size(), QSize(1, label.heightForWidth(label.width()))};
    }
    if (!label.wordWrap()) {
        return {label.text(), platz, einzeilig(label, label.text())};
    }
    return {label.text(), platz, umbrochen(label, platz.width(), label.text())};
}

Textmass mass(const ui::UmbruchKasten& kasten) {
    const QSize platz = kasten.size() - QSize(kasten.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 10, 0);
    return {kasten.text(), platz, umbrochen(kasten, platz.width(), kasten.text())};
}

Textmass mass(const QAbstractButton& knopf) {
    QStyleOptionButton lage;
    lage.initFrom(&knopf);
    // The padding cuts a text at its sides, and lets it out above and below.
    QSize platz = knopf.style()->subElementRect(QStyle::SE_PushButtonContents, &lage, &knopf).size();
    platz.setHeight(knopf.height() - 2);
    if (qobject_cast<const QCheckBox*>(&knopf) != nullptr) {
        platz = knopf.style()->subElementRect(QStyle::SE_CheckBoxContents, &lage, &knopf).size();
    } else if (qobject_cast<const QRadioButton*>(&knopf) != nullptr) {
        platz = knopf.style()->subElementRect(QStyle::SE_RadioButtonContents, &lage, &knopf).size();
    }
    QSize bedarf = einzeilig(knopf, knopf.text());
    if (!knopf.icon().isNull()) {
        bedarf.rwidth() += knopf.iconSize().width() + 4;
    }
    return {knopf.text(), platz, bedarf};
}

/// Any of the entries may be the chosen one. What can be typed scrolls.
Textmass mass(const QComboBox& wahl) {
    if (wahl.isEditable()) {
        return {};
    }
    QStyleOptionComboBox lage;
    lage.initFrom(&wahl);
    const QRect platz = wahl.style()->subControlRect(QStyle::CC_ComboBox, &lage, QStyle::SC_ComboBoxEditField, &wahl);
    QString laengster = wahl.currentText();
    for (int i = 0; i < wahl.count(); ++i) {
        if (einzeilig(wahl, wahl.itemText(i)).width() > einzeilig(wahl, laengster).width()) {
            laengster = wahl.itemText(i);
        }
    }
    return {laengster, platz.size(), QSize(einzeilig(wahl, laengster).width(), 1)};
}

Textmass mass(const QGroupBox& gruppe) {
    if (gruppe.title().isEmpty()) {
        return {};
    }
    return {gruppe.title(), QSize(gruppe.width() - 12, gruppe.height()), einzeilig(gruppe, gruppe.title())};
}

Textmass mass(const QHeaderView& kopf) {
    for (int spalte = 0; spalte < kopf.count(); ++spalte) {
        const QString text = kopf.model()->headerData(spalte, kopf.orientation()).toString();
        if (kopf.orientation() == Qt::Horizontal && !kopf.isSectionHidden(spalte) && !text.isEmpty() &&
            einzeilig(kopf, text).width() > kopf.sectionSize(spalte) - 4) {
            return {text, QSize(kopf.sectionSize(spalte) - 4, 1), QSize(einzeilig(kopf, text).width(), 1)};
        }
    }
    return {};
}

/// Rows that their list would cut, for it neither scrolls nor breaks them.
Textmass mass(const QAbstractItemView& ansicht) {
    const auto* zeilen = qobject_cast<const QListView*>(&ansicht);
    const bool rollt = ansicht.horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff && zeilen != nullptr;
    const QAbstractItemDelegate& zeichnung = *ansicht.itemDelegate();
    const bool eigene_zeichnung = typeid(zeichnung) != typeid(QStyledItemDelegate);
    if (ansicht.model() == nullptr || rollt || eigene_zeichnung || (zeilen != nullptr && zeilen->wordWrap())) {
        return {};
    }
    for (int zeile = 0; zeile < ansicht.model()->rowCount(); ++zeile) {
        for (int spalte = 0; spalte < ansicht.model()->columnCount(); ++spalte) {
            const QModelIndex ort = ansicht.model()->index(zeile, spalte);
            const QSize platz = ansicht.visualRect(ort).size();
            const QString text = ort.data().toString();
            const int breite = einzeilig(ansicht, text).width();
            if (!platz.isEmpty() && breite > platz.width()) {
                return {text, platz, QSize(breite, 1)};
            }
        }
    }
    return {};
}

/// What stands in a field while nothing is typed, or where nothing can be.
Textmass mass(const QLineEdit& zeile) {
    const QString text = zeile.isReadOnly() ? zeile.text() : zeile.placeholderText();
    const QMargins rand = zeile.textMargins();
    return {text, QSize(zeile.contentsRect().width() - rand.left() - rand.right() - 4, 1),
            QSize(einzeilig(zeile, text).width(), 1)};
}

/// It shrinks with its place, but nobody reads letters of less than this. One that is given no place is not shown.
Textmass mass(const ui::TextAnzeige& anzeige) {
    if (anzeige.size().isEmpty()) {
        return {};
    }
    constexpr int lesbar_px = 9;
    const bool gut = !anzeige.gekuerzt() && anzeige.schriftPx() >= lesbar_px;
    return {anzeige.text(), anzeige.size(), gut ? QSize() : anzeige.size() + QSize(lesbar_px, 0)};
}

template <class... Arten>
Textmass mass_von(const QWidget& widget) {
    Textmass ergebnis;
    const bool gefunden = ((dynamic_cast<const Arten*>(&widget) != nullptr &&
                            (ergebnis = mass(dynamic_cast<const Arten&>(widget)), true)) ||
                           ...);
    return gefunden ? ergebnis : Textmass{};
}

/// The part that its parents let through; a scroll area shows the rest when it is scrolled.
QRect sichtbar(const QWidget& widget, const QWidget& fenster) {
    QRect rest(QPoint(), widget.size());
    QPoint versatz;
    for (const QWidget* um = &widget; um != &fenster; um = um->parentWidget()) {
        const auto* rollt = qobject_cast<const QAbstractScrollArea*>(um->parentWidget()->parentWidget());
        if (rollt != nullptr && rollt->viewport() == um->parentWidget()) {
            break;
        }
        versatz += um->pos();
        rest &= um->parentWidget()->rect().translated(-versatz);
    }
    return rest;
}

}  // namespace

QStringList beschnittene_texte(const QWidget& fenster) {
    QStringList alle;
    for (const QWidget* widget : fenster.findChildren<QWidget*>()) {
        if (widget->window() != &fenster || !widget->isVisible()) {
            continue;
        }
        const Textmass m = mass_von<ui::TextAnzeige, ui::UmbruchKasten, QLabel, QAbstractButton, QComboBox, QGroupBox,
                                    QHeaderView, QAbstractItemView, QLineEdit>(*widget);
        if (m.text.trimmed().isEmpty()) {
            continue;
        }
        const QSize rest = sichtbar(*widget, fenster).size();
        const QString name = fenster.objectName() + ": " + widget->metaObject()->className() + " " +
                             widget->objectName() + " \"" + m.text.left(60) + "\" ";
        constexpr int luft = 2;  // of a line's height and width, that no letter needs
        if (m.bedarf.width() > m.platz.width() + luft || m.bedarf.height() > m.platz.height() + luft) {
            alle << name + QString("wants %1x%2, has %3x%4")
                               .arg(m.bedarf.width())
                               .arg(m.bedarf.height())
                               .arg(m.platz.width())
                               .arg(m.platz.height());
        } else if (rest != widget->size()) {
            alle << name + QString("shows %1x%2 of %3x%4")
                               .arg(rest.width())
                               .arg(rest.height())
                               .arg(widget->width())
                               .arg(widget->height());
        }
    }
    return alle;
}

}  // namespace tarvel::test

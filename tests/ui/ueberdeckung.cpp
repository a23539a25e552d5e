#include "tests/ui/ueberdeckung.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <vector>

#include "ui/fenster.h"
#include "ui/textanzeige.h"

namespace tarvel::test {
namespace {

struct Stelle {
    const QWidget* widget;
    QRect ort;  ///< in its window
};

/// Its own text, or something to press: not what only holds others.
bool ist_inhalt(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return !label->text().trimmed().isEmpty();
    }
    if (const auto* anzeige = dynamic_cast<const ui::TextAnzeige*>(&widget)) {
        return !anzeige->text().trimmed().isEmpty();
    }
    const bool teil_einer_wahl = qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
    return !teil_einer_wahl &&
           (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
            qobject_cast<const QComboBox*>(&widget) != nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr ||
            qobject_cast<const QAbstractItemView*>(&widget) != nullptr);
}

/// What its parents let be seen of it.
QRect sichtbarer_ort(const QWidget& widget, const QWidget& fenster) {
    QRect ort(widget.mapTo(&fenster, QPoint()), widget.size());
    for (const QWidget* um = widget.parentWidget(); um != nullptr && um != &fenster; um = um->parentWidget()) {
        ort &= QRect(um->mapTo(&fenster, QPoint()), um->size());
    }
    return ort & fenster.rect();
}

QString name(const QWidget& widget) {
    return widget.objectName().isEmpty() ? QString(widget.metaObject()->className()) : widget.objectName();
}

/// What is meant to hide what is behind it: the dark, the alarm of a device, a button in the place of another.
bool soll_verdecken(const QWidget& widget) {
    const QStringList diese{"bahn1.Nachtabschaltung", "bahn1.geraetealarm", "bahn1.Command_protokoll"};
    return diese.contains(widget.objectName());
}

/// Something stands in front of the whole rest, with a ground of its own.
bool liegt_davor(const QWidget& vorn, const QWidget& hinten) {
    if (soll_verdecken(vorn)) {
        return true;
    }
    for (const QWidget* um = vorn.parentWidget(); um != nullptr && !um->isAncestorOf(&hinten);
         um = um->parentWidget()) {
        if (um->autoFillBackground() || um->testAttribute(Qt::WA_StyledBackground) ||
            dynamic_cast<const ui::Fenster*>(um) != nullptr) {
            return true;
        }
    }
    return false;
}

}  // namespace

QStringList ueberdeckte_widgets(const QWidget& fenster) {
    std::vector<Stelle> stellen;
    for (const QWidget* widget : fenster.findChildren<QWidget*>()) {
        if (widget->window() == &fenster && widget->isVisible() && ist_inhalt(*widget)) {
            stellen.push_back({widget, sichtbarer_ort(*widget, fenster)});
        }
    }
    QStringList alle;
    constexpr int luft = 2;
    for (std::size_t i = 0; i < stellen.size(); ++i) {
        for (std::size_t j = i + 1; j < stellen.size(); ++j) {
            const QRect beide = stellen[i].ort & stellen[j].ort;
            const QWidget& a = *stellen[i].widget;
            const QWidget& b = *stellen[j].widget;
            if (beide.width() > luft && beide.height() > luft && !a.isAncestorOf(&b) && !b.isAncestorOf(&a) &&
                !liegt_davor(a, b) && !liegt_davor(b, a)) {
                alle << QString("%1 and %2 share %3x%4").arg(name(a), name(b)).arg(beide.width()).arg(beide.height());
            }
        }
    }
    return alle;
}

}  // namespace tarvel::test

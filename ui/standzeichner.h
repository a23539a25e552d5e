#pragma once

#include <QFont>
#include <QListView>
#include <QStyledItemDelegate>
#include <functional>

#include "competition/rangfolge.h"

namespace tarvel::ui {

/// What the columns of a standing share, so that their rows stay level.
struct standmass {
    int zeilenhoehe = 30;
    QFont gross;
    QFont klein;
    bool mit_sieger = false;  ///< the first row has won something
};

/// Draws a cell of a standing: its first line large, a second one small.
class Standzeichner : public QStyledItemDelegate {
public:
    Standzeichner(const standmass& mass, Qt::Alignment ausrichtung, QObject* eltern)
        : QStyledItemDelegate(eltern), mass_(mass), ausrichtung_(ausrichtung) {}

    void paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& zelle) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& zelle) const override;
    /// A name that is wider than its column is told whole.
    bool helpEvent(QHelpEvent* ereignis, QAbstractItemView* spalte, const QStyleOptionViewItem& option,
                   const QModelIndex& zelle) override;
    /// Needed for all cells of a column.
    int breite(const QListView& spalte) const;

protected:
    const standmass& mass() const { return mass_; }
    QColor grund(const QStyleOptionViewItem& option, const QModelIndex& zelle) const;

private:
    /// A name that is too wide for one line has the two that the other cells have.
    struct Satz {
        QStringList zeilen;
        QFont schrift;
        bool ganz;
    };
    Satz name_setzen(const QString& name, const QSize& platz) const;
    void name_malen(QPainter& maler, const QString& name, const QRect& feld) const;

    const standmass& mass_;
    Qt::Alignment ausrichtung_;
};

/// Draws the bar of the row instead of its words.
class Balkenzeichner final : public Standzeichner {
public:
    Balkenzeichner(const standmass& mass, const std::vector<wettkampf_balken>& balken, const spuren<farbe>& farben,
                   QObject* eltern)
        : Standzeichner(mass, Qt::AlignLeft, eltern), balken_(balken), farben_(farben) {}

    void paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& zelle) const override;

private:
    const std::vector<wettkampf_balken>& balken_;
    const spuren<farbe>& farben_;
};

}  // namespace tarvel::ui

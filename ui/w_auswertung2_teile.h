#pragma once

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "ui/ergebnisblatt.h"
#include "ui/stil.h"

namespace tarvel::ui {

/// The names of files as people call them. Under the pointer the file itself, if its name reads otherwise or is wider
/// than its list.
class Dateinamen final : public QStyledItemDelegate {
public:
    Dateinamen(std::function<QString(const QString&)> anzeigename, QObject* eltern)
        : QStyledItemDelegate(eltern), anzeigename_(std::move(anzeigename)) {}

    QString displayText(const QVariant& wert, const QLocale& /*gebiet*/) const override {
        return anzeigename_(wert.toString());
    }

    /// No wider than its list: the ends of long names tell them apart, and the middle is left out.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& zelle) const override {
        return {0, QStyledItemDelegate::sizeHint(option, zelle).height()};
    }

    bool helpEvent(QHelpEvent* ereignis, QAbstractItemView* liste, const QStyleOptionViewItem& option,
                   const QModelIndex& zelle) override {
        const bool abgeschnitten = QStyledItemDelegate::sizeHint(option, zelle).width() > liste->viewport()->width();
        const QString datei = zelle.data().toString();
        const bool sagen = abgeschnitten || anzeigename_(datei) != datei;
        QToolTip::showText(ereignis->globalPos(), sagen ? datei : QString(), liste);
        return true;
    }

private:
    std::function<QString(const QString&)> anzeigename_;
};

/// The captions over the columns of a list: it moves sideways with them.
class Tabellenkopf final : public QWidget {
public:
    Tabellenkopf(int einzug, QWidget* eltern) : QWidget(eltern), einzug_(einzug) {}

    void setText(const QString& text) {
        text_ = text;
        update();
    }
    void setSchrift(const QFont& schrift) {
        setFont(schrift);
        setFixedHeight(fontMetrics().height() + 4);
    }
    void setVersatz(int px) {
        versatz_ = px;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        maler.setPen(palette().color(QPalette::PlaceholderText));
        maler.setFont(font());
        const QRect feld = rect().adjusted(0, 0, versatz_, 0).translated(einzug_ + 1 - versatz_, 0);
        maler.drawText(feld, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text_);
    }

private:
    QString text_;
    int einzug_;
    int versatz_ = 0;
};

/// The printed page of a result in a window.
class Blattbild final : public QWidget {
public:
    using QWidget::QWidget;

    void setBlatt(ergebnisblatt blatt) {
        blatt_ = std::move(blatt);
        setAccessibleName(blatt_->titel);
        setAccessibleDescription(blatt_->kopf);
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        constexpr double breite_zu_hoehe = 277.0 / 190;  // of the paper within its margins
        QPainter maler(this);
        maler.fillRect(rect(), stil::karte);
        if (blatt_) {
            const double rand = height() * 0.03;
            const QSizeF platz(width() - 2 * rand, height() - 2 * rand);
            const double breite = std::min(platz.width(), platz.height() * breite_zu_hoehe);
            const QSizeF seite(breite, breite / breite_zu_hoehe);
            ergebnisblatt_zeichnen(maler, {QPointF((width() - breite) / 2, rand), seite}, *blatt_);
        }
    }

private:
    std::optional<ergebnisblatt> blatt_;
};

}  // namespace tarvel::ui

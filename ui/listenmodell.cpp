#include "ui/listenmodell.h"

namespace tarvel::ui {

QVariant ListenModell::data(const QModelIndex& zeile, int rolle) const {
    const auto nummer = static_cast<std::size_t>(zeile.row());
    if (!zeile.isValid() || nummer >= quelle_.zeilen().size()) {
        return {};
    }
    if (rolle == Qt::TextAlignmentRole) {
        return static_cast<int>(ausrichtung_);
    }
    const std::string& ganze = quelle_.gezeigt(nummer);
    const bool schmal = breite_ < namen_.breite && nummer < namen_.zeilen;
    switch (rolle) {
        case Qt::DisplayRole:
            return QString::fromStdString(schmal ? mit_schmalen_namen(ganze, namen_, breite_) : ganze);
        case Qt::AccessibleTextRole:
            return schmal ? QVariant(QString::fromStdString(ganze)) : QVariant();
        case Qt::ToolTipRole:
            return schmal ? QVariant(QString::fromStdString(gekuerzte_namen(ganze, namen_, breite_))) : QVariant();
        default:
            return {};
    }
}

void ListenModell::setNamen(const namensspalten& namen, std::size_t breite) {
    if (namen_ != namen || breite_ != breite) {
        namen_ = namen;
        breite_ = breite;
        if (anzahl_ > 0) {
            emit dataChanged(index(0), index(anzahl_ - 1));
        }
    }
}

void ListenModell::abgleichen() {
    const int neu = static_cast<int>(quelle_.zeilen().size());
    if (stand_ != quelle_.stand()) {
        beginResetModel();
        stand_ = quelle_.stand();
        anzahl_ = neu;
        endResetModel();
    } else if (neu > anzahl_) {
        beginInsertRows({}, anzahl_, neu - 1);
        anzahl_ = neu;
        endInsertRows();
    }
}

}  // namespace tarvel::ui

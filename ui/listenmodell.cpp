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
    return rolle == Qt::DisplayRole ? QVariant(QString::fromStdString(quelle_.zeilen()[nummer])) : QVariant();
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

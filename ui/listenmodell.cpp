#include "ui/listenmodell.h"

namespace tarvel::ui {

QVariant ListenModell::data(const QModelIndex& zeile, int rolle) const {
    const auto nummer = static_cast<std::size_t>(zeile.row());
    if (rolle != Qt::DisplayRole || !zeile.isValid() || nummer >= quelle_.zeilen().size()) {
        return {};
    }
    return QString::fromStdString(quelle_.zeilen()[nummer]);
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

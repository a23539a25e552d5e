#pragma once

#include <QAbstractListModel>

#include "core/steuerelemente.h"

namespace tarvel::ui {

/// The rows of a list control for a Qt view. Added rows arrive one by one, any other change resets the model.
class ListenModell : public QAbstractListModel {
public:
    ListenModell(const liste& quelle, QObject* eltern) : QAbstractListModel(eltern), quelle_(quelle) {}

    int rowCount(const QModelIndex& eltern = {}) const override { return eltern.isValid() ? 0 : anzahl_; }
    QVariant data(const QModelIndex& zeile, int rolle) const override;
    void abgleichen();
    void setAusrichtung(Qt::Alignment ausrichtung) { ausrichtung_ = ausrichtung; }

private:
    const liste& quelle_;
    Qt::Alignment ausrichtung_ = Qt::AlignLeft | Qt::AlignVCenter;
    int anzahl_ = 0;
    unsigned stand_ = 0;
};

}  // namespace tarvel::ui

#pragma once

#include <QAbstractListModel>

#include "core/namensspalten.h"
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
    /// The rows have such columns, drawn in this width. A name that is not whole there is told under the pointer.
    void setNamen(const namensspalten& namen, std::size_t breite);
    std::size_t namensbreite() const { return breite_; }
    const namensspalten& namen() const { return namen_; }

private:
    const liste& quelle_;
    Qt::Alignment ausrichtung_ = Qt::AlignLeft | Qt::AlignVCenter;
    namensspalten namen_;
    std::size_t breite_ = 0;
    int anzahl_ = 0;
    unsigned stand_ = 0;
};

}  // namespace tarvel::ui

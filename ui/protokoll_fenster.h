#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "ui/ablagefenster.h"
#include "ui/blattausgabe.h"
#include "ui/protokollstreifen.h"

namespace tarvel::ui {

/// The rows of the log for a view, which asks for the words of those that are in sight.
class Protokollmodell final : public QAbstractTableModel {
public:
    enum spalte { zeit, spur, fahrer, was, spalten_anzahl };

    Protokollmodell(const protokollfenster& logik, QObject* eltern) : QAbstractTableModel(eltern), logik_(logik) {}

    int rowCount(const QModelIndex& eltern = {}) const override { return eltern.isValid() ? 0 : zeilen_; }
    int columnCount(const QModelIndex& eltern = {}) const override { return eltern.isValid() ? 0 : spalten_anzahl; }
    QVariant data(const QModelIndex& zelle, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    void neuerInhalt();
    QString text(std::size_t zeile, spalte welche) const;

private:
    const protokollfenster& logik_;
    int zeilen_ = 0;
};

/// The window that explains a race.
class ProtokollFenster final : public Ablagefenster {
public:
    ProtokollFenster(protokollfenster& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    /// Pages with the strip, and the table as it is filtered.
    blattseiten seiten() const;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void dateispalte_fuellen(const teile& t);
    QLayout* filterzeile();
    QLayout* artenfeld();
    QTableView* tabelle();
    QLayout* fusszeile();
    void spalten_legen();
    void inhalt_neu();
    void wahl_zeigen();
    void drucken();
    void pdf_speichern(const dateien& ablage);

    protokollfenster& logik_;
    QWidget* dateispalte_ = nullptr;
    Protokollstreifen* streifen_ = nullptr;
    Protokollmodell* modell_ = nullptr;
    QTableView* tabelle_ = nullptr;
};

}  // namespace tarvel::ui

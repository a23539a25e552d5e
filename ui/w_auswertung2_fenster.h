#pragma once

#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyledItemDelegate>

#include "results/w_auswertung2.h"
#include "ui/ablagefenster.h"
#include "ui/ergebnisblatt.h"
#include "ui/rundendiagramm.h"
#include "ui/tabellenblatt.h"
#include "ui/vergleichsbild.h"

namespace tarvel::ui {

class Blattbild;
class Tabellenkopf;

/// The rows of the viewer's table: letters of one width, heads in bold.
class Ergebniszeichner final : public QStyledItemDelegate {
public:
    Ergebniszeichner(const w_auswertung2& logik, QObject* eltern) : QStyledItemDelegate(eltern), logik_(logik) {}

    QFont schrift;
    int breite = 0;  ///< of the widest row

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& zelle) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& zelle) const override;

private:
    const w_auswertung2& logik_;
};

/// The results viewer: files at the left, the table or a picture of it at the right, and under it what can be done.
class WAuswertung2Fenster final : public Ablagefenster {
public:
    WAuswertung2Fenster(w_auswertung2& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void dateispalte_fuellen(QVBoxLayout* aufbau);
    QLayout* blickzeile();
    QLayout* rennzeile();
    QWidget* tabelle();
    void speicherzeilen_im_menue();
    QWidget* klassenfeld();
    QWidget* sortierfeld();
    QWidget* speicherfeld();
    QLayout* befehlszeile();
    QLayout* fusszeile();
    void skalieren();
    void zeichnen();
    ergebnisblatt blatt_bilden() const;
    vergleichsbild_inhalt vergleich_bilden() const;
    tabellenblatt tabelle_bilden() const;
    /// What is shown, if it is no race.
    blattseiten seiten_bilden() const;
    void drucken();
    void pdf_speichern(const dateien& ablage);

    w_auswertung2& logik_;
    QWidget* dateispalte_ = nullptr;
    Tabellenkopf* kopf_ = nullptr;
    QListView* zeilen_ = nullptr;
    Ergebniszeichner* zeichner_ = nullptr;
    Blattbild* blatt_ = nullptr;
    Rundendiagramm* verlauf_ = nullptr;
    Vergleichsbild* vergleich_ = nullptr;
};

/// The lines in memory.
class WAuswDebugFenster final : public Fenster {
public:
    WAuswDebugFenster(w_ausw_debug& logik, Fensterverwaltung& verwaltung, QWidget* eltern);
};

}  // namespace tarvel::ui

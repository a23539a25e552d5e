#pragma once

#include <QPropertyAnimation>
#include <QWidget>
#include <array>
#include <filesystem>
#include <functional>

#include "race/bahn1.h"
#include "ui/binder.h"
#include "ui/hinweisschild.h"
#include "ui/lagetafel.h"
#include "ui/tankbalken.h"

namespace tarvel::ui {

/// One lane of the race window. Its widgets stand where the layout of the window puts them.
class Spurblock : public QWidget {
public:
    /// `pfad` tells where the file of a picture lies.
    Spurblock(bahn1& bahn, int spur, Binder& binder,
              const std::function<std::filesystem::path(const std::string&)>& pfad, QWidget* eltern);

    /// `gleitend`: moves to its new place where the eye can follow.
    void anordnen(const ansicht_geometrie& geometrie, bool gleitend);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    TextAnzeige* anzeigen(spur_teil teil, steuerelement& element, const QString& name);
    void kopf(const std::function<std::filesystem::path(const std::string&)>& pfad);
    void platzziffer();
    void plakette_setzen();
    void lagetafel();
    void hinweisschild();
    /// What the lane is in has changed: makes room for its board, or takes it back.
    void lage_zeigen();
    void teile_anordnen();
    void zaehler();
    void zaehler_anordnen();
    void tank();
    void rundenliste();
    void liste_anordnen(const platz& ort);
    void flaeche();
    void streifen_malen(QPainter& maler) const;
    QWidget*& teil(spur_teil name) { return teile_.at(static_cast<std::size_t>(name)); }

    bahn1& bahn_;
    int spur_;
    std::size_t index_;
    Binder& binder_;
    QString nummer_;
    std::array<QWidget*, static_cast<std::size_t>(spur_teil::anzahl)> teile_{};
    QPropertyAnimation fahrt_{this, "pos"};
    Lagetafel* tafel_ = nullptr;
    Hinweisschild* schild_ = nullptr;
    bool mit_tafel_ = false;
    ansicht_geometrie geometrie_;
    QColor spurfarbe_;
    QColor randfarbe_;
    QColor grundfarbe_;
};

}  // namespace tarvel::ui

#pragma once

#include <QWidget>
#include <array>
#include <filesystem>
#include <functional>

#include "race/bahn1.h"
#include "ui/binder.h"
#include "ui/tankbalken.h"

namespace tarvel::ui {

/// One lane of the race window. Its widgets stand where the layout of the window puts them.
class Spurblock : public QWidget {
public:
    /// `pfad` tells where the file of a picture lies.
    Spurblock(bahn1& bahn, int spur, Binder& binder,
              const std::function<std::filesystem::path(const std::string&)>& pfad, QWidget* eltern);

    void anordnen(const ansicht_geometrie& geometrie);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    TextAnzeige* anzeigen(spur_teil teil, steuerelement& element, const QString& name);
    void kopf(const std::function<std::filesystem::path(const std::string&)>& pfad);
    void platzziffer();
    void zaehler();
    void zaehler_anordnen();
    void tank();
    void rundenliste();
    void liste_anordnen(const platz& ort);
    void flaeche();
    QWidget*& teil(spur_teil name) { return teile_.at(static_cast<std::size_t>(name)); }

    bahn1& bahn_;
    int spur_;
    std::size_t index_;
    Binder& binder_;
    QString nummer_;
    std::array<QWidget*, static_cast<std::size_t>(spur_teil::anzahl)> teile_{};
    platz zaehler_ort_;
    rechteck zaehler_weit_;
    rechteck streifen_;
    QColor spurfarbe_;
    QColor randfarbe_;
    QColor grundfarbe_;
};

}  // namespace tarvel::ui

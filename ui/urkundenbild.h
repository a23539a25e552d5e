#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>
#include <optional>
#include <vector>

#include "core/dateien.h"
#include "results/urkunde.h"
#include "ui/blattausgabe.h"

namespace tarvel::ui {

/// A certificate with its pictures, ready to be drawn wherever.
struct urkundenbogen {
    urkundenvorlage vorlage;
    urkunde inhalt;
    QColor spurfarbe;
    std::vector<QImage> bilder;  ///< one for each element of the template; null where it shows none
};

urkundenbogen bogen_bilden(const dateien& ablage, const urkundenvorlage& vorlage, const urkunde& u,
                           const QColor& spurfarbe);

/// A page for each of them.
blattseiten urkundenseiten(const QString& titel, std::vector<urkundenbogen> boegen);

/// A certificate in a window.
class Urkundenbild final : public QWidget {
public:
    using QWidget::QWidget;

    void setBogen(std::optional<urkundenbogen> bogen);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    std::optional<blattseiten> seite_;
};

}  // namespace tarvel::ui

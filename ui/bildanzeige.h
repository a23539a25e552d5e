#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "ui/bildleser.h"

namespace tarvel::ui {

/// A picture as large as its place allows. It is read when it is first seen, and scaled once for each size of the
/// place.
class Bildanzeige final : public QWidget {
public:
    Bildanzeige(Bildleser& leser, QWidget* eltern) : QWidget(eltern), leser_(leser) {}

    /// The first of them that is a picture.
    void setQuelle(Bildleser::Dateien dateien);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void anfordern(int kante);

    Bildleser& leser_;
    Bildleser::Dateien quelle_;
    int kante_ = 0;         ///< of the copy that has been asked for
    unsigned anfrage_ = 0;  ///< number of the last one: what an older one brings is stale
    QImage bild_;
    QPixmap passend_;
};

}  // namespace tarvel::ui

#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace tarvel::ui {

/// A picture as large as its place allows. It is scaled once for each size of the place.
class Bildanzeige final : public QWidget {
public:
    explicit Bildanzeige(QWidget* eltern) : QWidget(eltern) {}

    void setBild(const QImage& bild);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QImage bild_;
    QPixmap passend_;
};

}  // namespace tarvel::ui

#pragma once

#include <QWidget>

namespace tarvel::ui {

/// A slot-car track at night, drawn: the picture of the house.
class Streckenbild : public QWidget {
public:
    explicit Streckenbild(QWidget* eltern = nullptr);
    /// Large title over the picture; empty for none.
    void setTitel(const QString& titel, const QString& unterzeile);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QString titel_;
    QString unterzeile_;
};

}  // namespace tarvel::ui

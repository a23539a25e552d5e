#pragma once

#include "results/urkundenfenster.h"
#include "ui/fenster.h"
#include "ui/urkundenbild.h"

namespace tarvel::ui {

/// Certificates: who gets one, what stands over it, and how it looks.
class UrkundenFenster : public Fenster {
public:
    UrkundenFenster(urkundenfenster& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QLayout* eingaben();
    QWidget* fahrerfeld();
    urkundenbogen bogen(const urkunde& u) const;
    blattseiten seiten() const;
    void pdf_speichern();

    urkundenfenster& logik_;
    const dateien& ablage_;
    QListView* liste_ = nullptr;
    Urkundenbild* bild_ = nullptr;
};

}  // namespace tarvel::ui

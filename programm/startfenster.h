#pragma once

#include <memory>

#include "core/dateien.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// Shown for a moment at program start, while best-time files of older versions move to their folder.
class update_form {
public:
    update_form(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster);

    bezeichnung Label1;
    void laden();
    void entladen() { fensterschliessen_->aus(); }

private:
    const dateien& ablage_;
    std::unique_ptr<plattform::zeitgeber> fensterschliessen_;
};

/// The picture shown over the main window after program start.
class form3 {
public:
    form3(plattform::zeitgeber_dienst& zeitgeber, fensterregister& fenster);

    bild Picture1;
    befehl Command1;  ///< closes it at once
    void laden();
    void entladen() { timer1_->aus(); }

private:
    std::unique_ptr<plattform::zeitgeber> timer1_;
};

}  // namespace tarvel

#pragma once

#include <memory>
#include <vector>

#include "core/dateien.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// Shown for a moment at program start, while best-time files of older versions move to their folder.
class update_form final : public fensterlogik {
public:
    update_form(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster);

    bezeichnung Label1;
    void laden() override;
    void entladen() override { fensterschliessen_->aus(); }
    std::vector<sprachliste> sprachdateien() override { return {sprache_up()}; }
    bool escape_schliesst() const override { return false; }

private:
    sprachliste sprache_up();

    const dateien& ablage_;
    std::unique_ptr<plattform::zeitgeber> fensterschliessen_;
};

/// The picture shown over the main window after program start.
class form3 final : public fensterlogik {
public:
    form3(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster);

    bild Picture1;
    befehl Command1;  ///< closes it at once
    void laden() override;
    void entladen() override { timer1_->aus(); }
    bool escape_schliesst() const override { return false; }

private:
    std::unique_ptr<plattform::zeitgeber> timer1_;
};

}  // namespace tarvel

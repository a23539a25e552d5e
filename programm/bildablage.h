#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/bildwahl.h"
#include "core/form1.h"
#include "core/namensliste.h"

namespace tarvel {

/// A picture file that is dropped on a driver or a vehicle of the main window becomes his. Who is in no list comes
/// into it: there his picture has its place.
class bildablage {
public:
    struct umgebung {
        form1& haupt;
        bildwahl& bilder;
        const texte& txt;
        plattform::meldungen& meldungen;
    };
    /// A list, what stands in it for nobody, and how it is kept.
    struct ziel {
        namensliste& liste;
        const std::string& niemand;
        std::function<bool()> speichern;
    };

    explicit bildablage(const umgebung& um) : um_(um) {}

    void ablegen(const ziel& wo, const std::string& name, const std::filesystem::path& bild);

private:
    umgebung um_;
};

}  // namespace tarvel

#pragma once

#include <QString>

#include "platform/meldungen.h"

namespace tarvel::qt {

class QtMeldungen final : public plattform::meldungen {
public:
    void knoepfe_beschriften(std::string_view ja, std::string_view nein, std::string_view ausweg) override;
    void zeigen(std::string_view text, std::string_view titel) override;
    void bestaetigen(std::string_view text, std::string_view titel) override;
    bool fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override;
    bool anbieten(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override;
    plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                   const plattform::antwortworte& worte) override;
    plattform::dreifache_antwort anbieten_mit_ausweg(std::string_view text, std::string_view titel,
                                                     const plattform::antwortworte& worte) override;
    void mitteilen(std::string_view text) override;

private:
    /// What stands on the buttons, what Enter presses, and whether there is a way out.
    struct art {
        plattform::antwortworte worte;
        bool ja_vorn = false;
        bool mit_ausweg = false;
    };
    plattform::dreifache_antwort stellen(std::string_view text, std::string_view titel, const art& wie) const;

    QString ja_ = "Ja";
    QString nein_ = "Nein";
    QString ausweg_ = "Abbrechen";
};

}  // namespace tarvel::qt

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungsdatei.h"
#include "hardware/tastenbelegung.h"
#include "race/protokollstand.h"
#include "race/rennen.h"

namespace tarvel {

/// The log of each race: begins it as the race window opens, and can do it again.
class rennprotokoll final : public protokollfuehrung, private protokollsenke {
public:
    struct umgebung {
        tarvel::rennen& rennen;
        renn_parameter& param;
        tastenbelegung& belegung;
        ereignis_tabelle& ereignisse;
        einstellungsdatei& datei;
        const dateien& ablage;
        const texte& txt;
        plattform::dienste dienste;
    };

    explicit rennprotokoll(const umgebung& um) : um_(um) {}
    rennprotokoll(const rennprotokoll&) = delete;
    rennprotokoll& operator=(const rennprotokoll&) = delete;
    ~rennprotokoll() override { um_.rennen.protokoll.aufhoeren(); }

    bool fuehren = true;  ///< off: races leave no log

    void beginnen() override;
    /// Tells if the log could not be kept to its end, once somebody is there.
    void abschliessen() override;
    std::string bisher() override;
    void mitlesen(protokollsenke& wer) override { mitleser_.push_back(&wer); }
    void nicht_mehr_mitlesen(protokollsenke& wer) override { std::erase(mitleser_, &wer); }
    /// Deletes the logs that nobody needs any more.
    void aufraeumen() const;
    /// A new log begins.
    std::function<void()> bei_beginn;
    /// A file with the result of the race that the log is of has been written; its name below the program folder.
    void ergebnis_geschrieben(const std::string& pfad);
    /// What was written so far is in the file, as far as the disk takes it.
    void sichern();
    /// File of the log that is kept now, or was kept last; empty without one.
    const std::string& dateiname() const { return dateiname_; }

    enum class ausgang {
        ganz,         ///< to the last line, and all as it was written
        beschaedigt,  ///< up to a line that is torn or damaged
        anders,       ///< to a line where the race goes another way
        fremd         ///< no log that this version can do again
    };
    /// Does a race again from its log, with settings, set-up and keys as they were. The race is then as it was behind
    /// the last line, and all that stands for the world is left to whoever called.
    ausgang nachspielen(std::string_view inhalt);
    /// Lays a log ready to be done again doing by doing (`mitschrift::weiter`). `inhalt` must outlive that. None if it
    /// is foreign, else whether it is whole.
    std::optional<bool> bereitlegen(std::string_view inhalt);
    /// The same of lines behind the head alone, in a program that has been set up by that.
    void bereitlegen(const protokollstand& stand);
    /// What has been done again goes on, and its log with it: `seither` ms have passed. False if the log cannot be
    /// kept; the race goes on all the same.
    bool weiterfuehren(const std::string& datei, const protokollstand& stand, dauer_ms seither);
    /// The line of the log where it went another way.
    std::optional<mitschrift::unterschied> abweichung() const { return um_.rennen.protokoll.abweichung(); }

private:
    void anhaengen(std::string_view zeile) override;
    ausgang zu_ende();
    void kopf_anhaengen(zeit_ms beginn);

    umgebung um_;
    std::unique_ptr<plattform::anhaengedatei> datei_;
    std::vector<protokollsenke*> mitleser_;
    std::string dateiname_;
    bool gewarnt_ = false;  ///< has told of a log that could not be kept
};

}  // namespace tarvel

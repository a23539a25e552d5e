#pragma once

#include <QObject>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/serienport.h"
#include "platform_qt/portfaden.h"
#include "platform_qt/portnamen.h"

namespace tarvel::qt {

/// Why a port did not open.
struct Portfehler {
    int nummer = 0;
    QString sperrdatei;
};

class QtSerienport final : public plattform::serienport {
public:
    QtSerienport(const Portnamen& namen, Portfehler& fehler, const plattform::uhr& uhr)
        : namen_(namen), fehler_(fehler), uhr_(uhr) {}
    ~QtSerienport() override { schliessen(); }

    bool oeffnen(int nummer, std::string_view werte) override;
    void schliessen() override;
    bool offen() const override { return faden_ != nullptr; }
    bool schreiben(std::string_view bytes) override { return faden_ != nullptr && faden_->schreiben(bytes); }

private:
    void einwerfen(const Portnachricht& nachricht);
    void austragen();
    void zustellen(const Portnachricht& nachricht);
    std::optional<Portnachricht> naechste();

    const Portnamen& namen_;
    Portfehler& fehler_;
    const plattform::uhr& uhr_;
    QObject briefkasten_;  ///< wakes the program's loop
    std::mutex sperre_;
    std::deque<Portnachricht> eingang_;  ///< what the program has still to hear
    bool traegt_aus_ = false;
    std::unique_ptr<Portfaden> faden_;  ///< while the port is open; ends before what it puts into
};

class QtSerienportDienst final : public plattform::serienport_dienst {
public:
    QtSerienportDienst(std::filesystem::path programmordner, const plattform::uhr& uhr)
        : namen_(std::move(programmordner)), uhr_(uhr) {}

    std::unique_ptr<plattform::serienport> erzeugen() override {
        return std::make_unique<QtSerienport>(namen_, fehler_, uhr_);
    }
    std::vector<int> vorhandene() const override { return namen_.vorhandene(); }
    plattform::portangaben angaben(int nummer) const override { return namen_.angaben(nummer); }
    int fehlernummer() const override { return fehler_.nummer; }
    std::string sperrdatei() const override { return fehler_.sperrdatei.toStdString(); }

private:
    Portnamen namen_;
    const plattform::uhr& uhr_;
    Portfehler fehler_;
};

/// The lock file that is there for a port of this name; empty if there is none.
QString sperrdatei_von(const QString& port);

/// Nothing if the text is not four values with commas between them, or one of them does not exist.
std::optional<Portwerte> portwerte_lesen(std::string_view text);

}  // namespace tarvel::qt

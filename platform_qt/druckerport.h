#pragma once

#include <QtGlobal>
#include <filesystem>
#include <memory>

#include "platform/bibliothek.h"
#include "platform/druckerport.h"

namespace tarvel::qt {

#ifndef Q_OS_WIN
/// The registers as a file whose bytes stand at their addresses.
class Portdatei final : public plattform::druckerport {
public:
    explicit Portdatei(std::filesystem::path datei = "/dev/port") : datei_(std::move(datei)) {}
    ~Portdatei() override;

    std::optional<std::uint8_t> lesen(int adresse) override;
    bool schreiben(int adresse, std::uint8_t wert) override;
    std::string weg() const override { return datei_.string(); }

private:
    bool bereit(int adresse);

    std::filesystem::path datei_;
    int kennung_ = -1;
};
#endif

/// The registers behind a library that has the right to reach them. It is looked for at their first use: its driver
/// may ask the operator something. Where there is none, they are reached through `sonst`.
class Portbibliothek final : public plattform::druckerport {
public:
    explicit Portbibliothek(plattform::bibliothek_dienst& dienst, plattform::druckerport* sonst = nullptr)
        : dienst_(dienst), sonst_(sonst) {}

    std::optional<std::uint8_t> lesen(int adresse) override;
    bool schreiben(int adresse, std::uint8_t wert) override;
    std::string weg() const override;

private:
    void suchen();
    bool bereit(int adresse);

    plattform::bibliothek_dienst& dienst_;
    plattform::druckerport* sonst_;
    bool gesucht_ = false;
    std::unique_ptr<plattform::bibliothek> bibliothek_;
    short (*lesen_)(short) = nullptr;
    void (*schreiben_)(short, short) = nullptr;
};

}  // namespace tarvel::qt

#include "platform_qt/qt_bibliothek.h"

#include <QLibrary>
#include <QString>

namespace tarvel::qt {
namespace {

class QtBibliothek final : public plattform::bibliothek {
public:
    explicit QtBibliothek(std::string_view name)
        : bibliothek_(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))) {}
    ~QtBibliothek() override { bibliothek_.unload(); }

    bool laden() { return bibliothek_.load(); }
    ruf finden(const char* name) const override { return bibliothek_.resolve(name); }

private:
    mutable QLibrary bibliothek_;  // asks for a name on a loaded library change nothing
};

}  // namespace

std::unique_ptr<plattform::bibliothek> QtBibliothekDienst::laden(std::string_view name) {
    auto bibliothek = std::make_unique<QtBibliothek>(name);
    return bibliothek->laden() ? std::move(bibliothek) : nullptr;
}

}  // namespace tarvel::qt

#include "platform_qt/qt_bibliothek.h"

#include <QLibrary>
#include <QString>

namespace tarvel::qt {
namespace {

class QtBibliothek final : public plattform::bibliothek {
public:
    explicit QtBibliothek(const QString& name) : bibliothek_(name) {}
    ~QtBibliothek() override { bibliothek_.unload(); }

    bool laden() { return bibliothek_.load(); }
    ruf finden(const char* name) const override { return bibliothek_.resolve(name); }

private:
    mutable QLibrary bibliothek_;  // asks for a name on a loaded library change nothing
};

}  // namespace

std::unique_ptr<plattform::bibliothek> QtBibliothekDienst::laden(std::string_view name) {
    const QString blank = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    for (const QString& ort : {QString::fromStdU16String(ordner_.u16string()), QString()}) {
        auto bibliothek = std::make_unique<QtBibliothek>(ort.isEmpty() ? blank : ort + "/" + blank);
        if (bibliothek->laden()) {
            return bibliothek;
        }
    }
    return nullptr;
}

}  // namespace tarvel::qt

#include "core/platzhalter.h"

#include <cstddef>

namespace tarvel {

std::string eingesetzt(std::string text, std::initializer_list<std::string> werte) {
    char nummer = '1';
    for (const std::string& wert : werte) {
        if (const std::size_t ort = text.find({'%', nummer}); ort != std::string::npos) {
            text.replace(ort, 2, wert);
        }
        ++nummer;
    }
    return text;
}

}  // namespace tarvel

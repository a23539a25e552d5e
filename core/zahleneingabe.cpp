#include "core/zahleneingabe.h"

#include "core/text.h"

namespace tarvel {

bool ist_zahl(std::string_view text) {
    text = gekuerzt(text);
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        text.remove_prefix(1);
    }
    if (!text.empty() && (text.front() == ',' || text.front() == '.')) {
        text.remove_prefix(1);
    }
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

}  // namespace tarvel

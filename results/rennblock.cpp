#include "results/rennblock.h"

namespace tarvel {

std::string block_aus(const std::vector<std::string>& felder, std::size_t nummer, const std::string& trenner) {
    std::string text;
    for (std::size_t i = nummer * felder_je_block; i < (nummer + 1) * felder_je_block; ++i) {
        text += (i < felder.size() ? felder[i] : std::string()) + trenner;
    }
    return text;
}

std::string leerer_block(const std::string& trenner) {
    return block_aus({}, 0, trenner);
}

bool ist_leer(std::string_view block, const std::string& trenner) {
    return block == leerer_block(trenner);
}

std::string blockfeld(const rennblock& block, blockreihe reihe, std::size_t feld, const std::string& trenner) {
    const auto nummer = static_cast<std::size_t>(reihe);
    const auto felder = nummer < block.size() ? felder_teilen(block[nummer], trenner) : std::vector<std::string>{};
    return feld < felder.size() ? felder[feld] : std::string();
}

void blockfeld_setzen(rennblock& block, blockreihe reihe, std::size_t feld, const std::string& text,
                      const std::string& trenner) {
    const auto nummer = static_cast<std::size_t>(reihe);
    if (nummer >= block.size()) {
        return;
    }
    auto felder = felder_teilen(block[nummer], trenner);
    if (feld < felder.size()) {
        felder[feld] = text;
        block[nummer] = felder_verbinden(felder, trenner);
    }
}

}  // namespace tarvel

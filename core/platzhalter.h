#pragma once

#include <initializer_list>
#include <string>

namespace tarvel {

/// The text with its "%1", "%2", … replaced by the values; what it does not name is left out.
std::string eingesetzt(std::string text, std::initializer_list<std::string> werte);

}  // namespace tarvel

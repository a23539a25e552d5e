// The library's templates that the tests spend most of their time in, optimised though the rest is not: under the
// sanitizers an unoptimised string takes twice its time. Linked first, so that every other file's copy gives way to
// this one.
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

template class std::basic_string<char>;
template class std::basic_string_view<char>;
template class std::vector<std::string>;
template class std::vector<int>;
template class std::function<void()>;
template class std::reverse_iterator<std::string::iterator>;
template class std::reverse_iterator<std::string::const_iterator>;
template bool std::operator==(const std::string&, const char*);
template bool std::operator==(std::string_view, std::type_identity_t<std::string_view>);
template std::string std::operator+(const std::string&, const std::string&);
template std::string std::operator+(const std::string&, const char*);
template std::string std::operator+(std::string&&, const std::string&);
template std::string std::operator+(std::string&&, const char*);
template std::string std::operator+(const char*, const std::string&);

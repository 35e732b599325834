#include "document/tablist.h"

#include <algorithm>

namespace corvanta {

namespace {

std::size_t fieldStart(std::string_view text, int n, char separator)
{
    std::size_t at = 0;
    for (; n > 0; --n) {
        at = text.find(separator, at);
        if (at == std::string_view::npos)
            return at;
        ++at;
    }
    return at;
}

} // namespace

int fieldCount(std::string_view text, char separator)
{
    return static_cast<int>(std::count(text.begin(), text.end(), separator)) + 1;
}

std::string fieldAt(std::string_view text, int n, char separator)
{
    const std::size_t start = fieldStart(text, n, separator);
    if (start == std::string_view::npos)
        return {};
    const std::string_view rest = text.substr(start);
    return std::string(rest.substr(0, rest.find(separator)));
}

std::string setFieldAt(std::string_view text, int n, std::string_view value, char separator)
{
    std::string result(text);
    for (int have = fieldCount(text, separator); have <= n; ++have)
        result += separator;
    const std::size_t start = fieldStart(result, n, separator);
    const std::size_t end = std::min(result.find(separator, start), result.size());
    return result.replace(start, end - start, value);
}

} // namespace corvanta

#include "Tools/Excludes.h"

#include <fnmatch.h>

#include <algorithm>

using namespace Tools;

namespace {

const char* nameIn(const std::string& path) {
    return path.c_str() + path.rfind('/') + 1;
}

} // namespace

void Excludes::add(std::string pattern) {
    while (pattern.size() > 1 && pattern.ends_with('/'))
        pattern.pop_back();
    if (!pattern.empty())
        m_patterns.push_back(std::move(pattern));
}

bool Excludes::match(const std::string& path, const char* name) const {
    return std::ranges::any_of(m_patterns, [&](const std::string& pattern) {
        return fnmatch(pattern.c_str(), path.c_str(), 0) == 0 || fnmatch(pattern.c_str(), name, 0) == 0;
    });
}

bool Excludes::reach(const std::string& top, const std::string& relative) const {
    if (isEmpty())
        return false;
    const std::string path = relative.empty() ? top : top + '/' + relative;
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string way = path.substr(0, end);
        if (match(way, way.size() < top.size() ? "" : nameIn(way)))
            return true;
        if (end == std::string::npos)
            return false;
    }
}

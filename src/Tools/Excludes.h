#pragma once

#include <string>
#include <vector>

namespace Tools {

/// Patterns of what a cleanup leaves alone, with all below it. Each is one of fnmatch(3) for an absolute
/// path, where "*" matches slashes too, and for a name.
class Excludes {
public:
    void add(std::string pattern);
    bool isEmpty() const { return m_patterns.empty(); }

    /// Returns whether a pattern matches an entry itself.
    bool match(const std::string& path, const char* name) const;
    /// Returns whether a pattern matches the folder `top`, a folder above it by its path, or an entry on the
    /// way from there to `relative`, which may be empty.
    bool reach(const std::string& top, const std::string& relative) const;

private:
    std::vector<std::string> m_patterns;
};

} // namespace Tools

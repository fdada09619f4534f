#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

/// What a person is asked to choose.
struct FileChoice {
    enum class Kind { folder, newFile };

    Kind kind = Kind::folder;
    QString title;
    QString startFolder;
    QString name = {};     ///< proposed for a new file
    QString typeName = {}; ///< of a new file, as in "Text (*.txt)"
    QString pattern = {};  ///< of such names, as in "*.txt"
};

/// The desktop's own dialog for files. One for a window that has gone is closed, without an answer.
class FileChooser {
public:
    /// Gets the path, nothing when the person chose none.
    using Answered = std::function<void(const std::optional<QString>& path)>;

    virtual ~FileChooser() = default;

    /// Asks above the window of `over`. Calls `answered`, or `missing` where the desktop has no such dialog
    /// or does not answer; one of the two, later, and once.
    virtual void ask(QWidget* over, const FileChoice& choice, Answered answered,
                     std::function<void()> missing) = 0;
};

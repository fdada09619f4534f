#include "UI/Kit/FilePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace {

using Chosen = std::function<void(const QString&)>;

constexpr auto isAskedProperty = "isAskedForFile";

std::shared_ptr<FileChooser>& desktopsChooser() {
    static std::shared_ptr<FileChooser> chooser;
    return chooser;
}

void openToolkits(QWidget* over, const FileChoice& choice, const Chosen& chosen) {
    auto* panel = new QFileDialog(over, choice.title, choice.startFolder);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    // A desktop's own panel may ask whether to replace a file before the suffix is added to its name.
    panel->setOption(QFileDialog::DontUseNativeDialog);
    if (choice.kind == FileChoice::Kind::folder) {
        panel->setFileMode(QFileDialog::Directory);
        panel->setOption(QFileDialog::ShowDirsOnly);
    } else {
        panel->setAcceptMode(QFileDialog::AcceptSave);
        panel->setNameFilter(choice.typeName);
        panel->setDefaultSuffix(QFileInfo(choice.pattern).suffix());
        panel->selectFile(choice.name);
    }
    QObject::connect(panel, &QFileDialog::fileSelected, over, chosen);
    panel->open();
}

} // namespace

void FilePanel::use(std::shared_ptr<FileChooser> desktops) {
    desktopsChooser() = std::move(desktops);
}

void FilePanel::open(QWidget* over, const FileChoice& choice, Chosen chosen) {
    if (!desktopsChooser())
        return openToolkits(over, choice, chosen);
    if (over->property(isAskedProperty).toBool())
        return;
    over->setProperty(isAskedProperty, true);
    const QPointer<QWidget> asked(over);
    const auto answered = [asked, chosen](const std::optional<QString>& path) {
        if (!asked)
            return;
        asked->setProperty(isAskedProperty, false);
        if (path)
            chosen(*path);
    };
    const auto missing = [asked, choice, chosen] {
        if (!asked)
            return;
        asked->setProperty(isAskedProperty, false);
        openToolkits(asked, choice, chosen);
    };
    desktopsChooser()->ask(over, choice, answered, missing);
}

#include "UI/ShortcutsSheet.h"

#include "UI/Kit/PushButton.h"
#include "UI/Kit/SizeList.h"
#include "UI/Kit/TextLabel.h"

#include <QKeySequence>
#include <QVBoxLayout>

namespace {

constexpr int keysWidth = 460;
constexpr int maxKeysHeight = 460;

/// Returns the keys as the desktop names them.
QString shown(const QList<QKeyCombination>& keys, const QString& between = QStringLiteral(", ")) {
    QStringList texts;
    for (const QKeyCombination& key : keys)
        texts.append(QKeySequence(key).toString(QKeySequence::NativeText));
    return texts.join(between);
}

} // namespace

ShortcutsSheet::ShortcutsSheet(QWidget* parent)
    : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Keyboard"));
    auto* title = new TextLabel(Theme::TextStyle::title3, QFont::Bold);
    title->setPlainText(windowTitle());
    auto* keys = new SizeList(windowTitle());
    keys->addHeading(tr("Everywhere"));
    keys->addRow({.name = tr("Go to a section"),
                  .figure = shown({Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_5}, QStringLiteral(" … "))});
    keys->addRow({.name = tr("Show or hide the sidebar"), .figure = shown({Qt::Key_F9})});
    keys->addRow({.name = tr("Settings"), .figure = shown({Qt::CTRL | Qt::Key_Comma})});
    keys->addRow({.name = tr("Close the window"), .figure = shown({Qt::CTRL | Qt::Key_W})});
    keys->addRow({.name = tr("Quit Tavrin"), .figure = shown({Qt::CTRL | Qt::Key_Q})});
    keys->addRow({.name = tr("This sheet"), .figure = shown({Qt::Key_F1, Qt::Key_Question})});
    keys->addHeading(tr("Processes"));
    keys->addRow({.name = tr("Search"), .figure = shown({Qt::CTRL | Qt::Key_F})});
    keys->addRow({.name = tr("Jump to a name"), .figure = tr("its first letters")});
    keys->addRow({.name = tr("First and last row"), .figure = shown({Qt::Key_Home, Qt::Key_End})});
    keys->addRow({.name = tr("Select more rows, or all"),
                  .figure = shown({Qt::SHIFT | Qt::Key_Down, Qt::CTRL | Qt::Key_A})});
    keys->addRow({.name = tr("Details"), .figure = shown({Qt::Key_Enter, Qt::CTRL | Qt::Key_I})});
    keys->addRow({.name = tr("Quit"), .figure = shown({Qt::Key_Delete})});
    keys->addRow({.name = tr("Force kill"), .figure = shown({Qt::SHIFT | Qt::Key_Delete})});
    keys->addRow({.name = tr("Menu of the row"), .figure = shown({Qt::Key_Menu, Qt::SHIFT | Qt::Key_F10})});
    keys->addRow({.name = tr("Copy the selected rows"), .figure = shown({Qt::CTRL | Qt::Key_C})});
    keys->addRow(
        {.name = tr("Fold or open a branch of the tree"), .figure = shown({Qt::Key_Left, Qt::Key_Right})});
    keys->addRow({.name = tr("Read and sort anew"), .figure = shown({Qt::Key_F5})});
    keys->addRow({.name = tr("Leave the row"), .figure = shown({Qt::Key_Escape})});
    keys->fit(keysWidth, maxKeysHeight);
    auto* done = new PushButton(tr("Done"), PushButton::Look::prominent);
    done->setDefault(true);
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(12);
    column->addWidget(title);
    column->addWidget(keys);
    column->addWidget(done, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

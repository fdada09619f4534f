#include "UI/Settings/CleanupTab.h"

#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Settings/TextListEditor.h"

CleanupTab::CleanupTab(Preferences& preferences, QWidget* parent)
    : SettingsForm(preferences, tr("Cleanup"), parent) {
    auto* asking = addSection(tr("Questions"));
    addToggle(asking, tr("Ask before cleaning everything"), preferences.askBeforeCleaningAll);
    auto* note = (new TextLabel(Theme::TextStyle::caption))->secondary()->wrapped();
    note->setPlainText(tr("When off, “Clean All” in Optimize starts at once."));
    asking->addNote(note);
    addList(tr("Never clean"), tr("Nothing is excluded."), tr("Path or pattern, such as *.gguf"),
            tr("Neither counted nor removed. A path keeps all below it."), preferences.cleanupExcludes);
    addList(tr("Project folders"), tr("Your home folder"), {},
            tr("Where “Project leftovers” looks for projects. Hidden folders and other disks are left out."),
            preferences.projectFolders);
}

void CleanupTab::addList(const QString& title, const QString& emptyText, const QString& prompt,
                         const QString& note, Property<QStringList>& property) {
    auto* section = addSection(title);
    auto* list = new TextListEditor(title, emptyText, prompt);
    section->addRow(list);
    auto* label = (new TextLabel(Theme::TextStyle::caption))->secondary()->wrapped();
    label->setPlainText(note);
    section->addNote(label);
    addDisplay([list, &property] { list->set(property()); });
    connect(list, &TextListEditor::changed, this,
            [&property](const QStringList& texts) { property.set(texts); });
}

#include "Core/Translations.h"

#include "Core/Announcements/MessageCenter.h"
#include "Core/Formatters.h"
#include "Platform/CleanupTargets.h"
#include "Platform/Platform.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/FakeDesktop.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/MenuBar.h"
#include "UI/ModelFixture.h"
#include "UI/Overview/FreeRAMSheet.h"
#include "UI/Processes/ProcessMenu.h"
#include "UI/Processes/ProcessTableModel.h"
#include "UI/RootView.h"
#include "UI/SampleSessions.h"
#include "UI/Sessions/SessionDialogs.h"
#include "UI/Sessions/SessionResultView.h"
#include "UI/Sessions/SessionsView.h"
#include "UI/Settings/QuickKillEditorSheet.h"
#include "UI/Settings/SettingsScene.h"
#include "UI/Widget.h"
#include "support/FakeLoginItem.h"
#include "support/ScriptedFeed.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeView>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// Puts brackets around every text that is looked up, and keeps "CONTEXT|TEXT".
class Brackets : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        lookedUp.insert(QString::fromUtf8(context) + u'|' + QString::fromUtf8(text));
        return u'[' + QString::fromUtf8(text) + u']';
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QString> lookedUp;
};

/// Returns "CONTEXT|TEXT" of each text that lupdate finds in the sources, and so gives to a translator.
QSet<QString> extracted() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"all.ts"_s);
    const QString sources = QStringLiteral(TAVRIN_SOURCE_DIR) + u"/src"_s;
    EXPECT_EQ(QProcess::execute(QStringLiteral(TAVRIN_LUPDATE),
                                {u"-silent"_s, sources, u"-I"_s, sources, u"-ts"_s, path}),
              0);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QSet<QString> found;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"source")
            found.insert(context + u'|' + xml.readElementText());
    }
    return found;
}

/// Returns whether the context is a class of Qt or that of names, some of which are the same in every
/// language.
bool isForeign(const QString& lookedUp) {
    static const QRegularExpression foreign(u"^(Q[A-Z]|Translations\\|)"_s);
    return foreign.match(lookedUp).hasMatch();
}

/// Names of programs, products, presets and languages, which are the same in every language.
QStringList names() {
    QStringList known;
    for (const QuickKillPreset& preset : QuickKillPreset::defaults())
        known.append(preset.name);
    for (const Language language : allCases<Language>())
        known.append(Translations::nameOf(language));
    known << u"Tavrin"_s << u"claude"_s << u"worker"_s;
    return known;
}

/// What a person could see or hear of a table.
QStringList textsOf(const QAbstractItemModel& table) {
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(table.headerData(column, Qt::Horizontal).toString());
        texts.append(table.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString());
        for (int row = 0; row < table.rowCount(); ++row) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                texts.append(table.index(row, column).data(role).toString());
        }
    }
    return texts;
}

/// What a person could see or hear of the widget, each by itself.
QStringList textsOf(const QWidget& widget) {
    QStringList texts{widget.windowTitle(), widget.toolTip(), widget.accessibleName(),
                      widget.accessibleDescription()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts.append(label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts.append(button->text());
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        texts.append(field->placeholderText());
    if (const auto* picker = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < picker->count(); ++i)
            texts.append(picker->itemText(i));
    }
    if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->text());
    }
    if (const auto* table = qobject_cast<const QTreeView*>(&widget))
        texts.append(textsOf(*table->model()));
    for (const QAction* action : widget.actions())
        texts.append(action->text());
    return texts;
}

/// What is left without what stands in brackets, names and markup.
QString untranslated(QString text) {
    static const QRegularExpression markup(u"<[^>]*>"_s);
    static const QRegularExpression innermost(u"\\[[^\\[\\]]*\\]"_s);
    text.remove(markup).replace(u"&gt;"_s, u">"_s);
    while (text.contains(innermost))
        text.remove(innermost);
    for (const QString& name : names())
        text.remove(name);
    return text;
}

bool hasLetters(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

void expectTranslated(const QWidget& root) {
    QList<const QWidget*> widgets{&root};
    for (const QWidget* each : root.findChildren<QWidget*>())
        widgets.append(each);
    ASSERT_GT(widgets.size(), 1);
    for (const QWidget* widget : widgets) {
        for (const QString& text : textsOf(*widget)) {
            EXPECT_FALSE(hasLetters(untranslated(text)))
                << widget->metaObject()->className() << ": " << qPrintable(text);
        }
    }
}

struct TranslationsTest : ModelFixture {
    Brackets brackets;
    MessageCenter messages{std::make_unique<ScriptedFeed>(), prefs.file()};

    void SetUp() override {
        QCoreApplication::installTranslator(&brackets);
        fakes.host->memory = {.activeBytes = 15 * GiB, .swapUsedBytes = 5 * GiB, .totalBytes = 16 * GiB};
        fakes.host->thermal = 3;
        addProcesses(2, "claude", quint64(2) << 30);
        addProcesses(6, "worker", quint64(1) << 30);
        tick();
    }
    void TearDown() override {
        QCoreApplication::removeTranslator(&brackets);
        static const QSet<QString> known = extracted();
        EXPECT_GT(known.size(), 600);
        for (const QString& text : brackets.lookedUp - known)
            EXPECT_TRUE(isForeign(text)) << "no translator sees " << qPrintable(text);
    }
};

} // namespace

TEST_F(TranslationsTest, TheMainWindowAndItsDialogs) {
    MainWindow window(model, prefs, messages);
    window.show();
    for (const auto tab : allCases<RootView::Tab>()) {
        window.findChild<RootView*>()->select(tab);
        settle();
    }
    const NukePreview preview = model.actions().previewForName(u"worker"_s);
    new ConfirmDialog(&window, preview.dialogTitle(), preview.dialogMessage());
    const CacheTarget npm = CacheTarget::defaults().first();
    CleanupConfirmation::ask(&window, &window, npm, [] {});
    CleanupConfirmation::askAll(&window, &window, model.cleanup(), CacheTarget::defaults(), {},
                                [](const QList<CacheTarget>&, const QStringList&) {});
    new CacheDetailDrawer(model.cleanup(), npm, {}, &window);
    (new FreeRAMSheet(model, &window))->show();
    new QuickKillEditorSheet(QString(), QuickKillPreset::blank(), {}, &window);
    Session session = SampleSessions::large(100, QString());
    session.name.clear();
    LeftOver leftOver = SampleSessions::leftOver(200);
    leftOver.folder.clear();
    leftOver.ended.reset(); // a time is in the user's locale
    DuplicateServers duplicates = SampleSessions::duplicates(300, session);
    duplicates.label = session.agent;
    for (auto* processes : {&session.processes, &leftOver.processes, &duplicates.older}) {
        for (SessionProcess& member : *processes) {
            member.process.name = session.agent;
            member.process.arguments.clear();
        }
    }
    auto& sessions = *window.findChild<SessionsView*>();
    sessions.show({.sessions = {session}, .leftOvers = {leftOver}, .duplicates = {duplicates}});
    for (auto* header : sessions.findChildren<RowHeader*>())
        header->click();
    sessions.addResult({.records = {{.pid = 1}}, .resumeCommand = session.agent});
    SessionEnding ending = SampleSessions::endingOf(session);
    ending.resumeCommand = session.agent;
    SessionDialogs::askEnd(&window, &window, {.ending = ending, .processes = session.processes}, [] {});
    SessionDialogs::askPause(&window, &window, session, [] {});
    QMenu menu(&window);
    const ProcessTableModel rows;
    ProcessMenu(model).fill(menu, rows, {.first = model.processes().first(), .sameName = 2}, {});
    settle();
    expectTranslated(window);
}

TEST_F(TranslationsTest, TheSettings) {
    FakeLoginItem loginItem;
    const FakeNotifications notifications;
    SettingsScene window(prefs, loginItem, notifications);
    window.show();
    settle();
    expectTranslated(window);
}

TEST_F(TranslationsTest, TheTrayAndTheWidget) {
    FakeDesktop desktop;
    WidgetWindow widget(desktop.desktop());
    MenuBarController controller(model, prefs, desktop.desktop(), widget);
    widget.show(model);
    desktop.popover->show({});
    settle();
    expectTranslated(*desktop.popover->content);
    expectTranslated(*desktop.panels->first()->content);
    for (const QAction* action : desktop.statusItem->menu->actions())
        EXPECT_FALSE(hasLetters(untranslated(action->text()))) << qPrintable(action->text());
    EXPECT_TRUE(desktop.statusItem->content.title.startsWith(u'['));
}

TEST_F(TranslationsTest, TheCleanupTargetsOfTheSystem) {
    for (const PlatformTarget& target : Platform::native().cleanupTargets->all())
        EXPECT_FALSE(hasLetters(untranslated(target.reason))) << qPrintable(target.reason);
}

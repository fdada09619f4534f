// A library to preload into a program with windows. A test uses the program through it, by the same
// accessibility interfaces that a screen reader gets over the bus, at a thousandth of the time.
//
// The environment variable USE_FROM_INSIDE is the number of a socket. Each line on it is a request:
//   look             answered by a line: a JSON list of [name, number of actions, whether it can be used now]
//   press N ACTION   does an action of the Nth object of the last look; not answered
#include <QAccessible>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <unistd.h>

#include <algorithm>

namespace {

constexpr int childrenRead = 400;
constexpr int deepest = 30;

class UseFromInside {
public:
    explicit UseFromInside(int socket)
        : socket(socket)
        , notifier(socket, QSocketNotifier::Read) {
        QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { read(); });
        QAccessible::setActive(true);
    }

private:
    void read() {
        char text[4096];
        const auto length = ::read(socket, text, sizeof text);
        if (length <= 0) {
            notifier.setEnabled(false);
            return;
        }
        received.append(text, length);
        for (auto end = received.indexOf('\n'); end >= 0; end = received.indexOf('\n')) {
            const QList<QByteArray> words = received.first(end).split(' ');
            received.remove(0, end + 1);
            if (words[0] == "look")
                look();
            else if (words[0] == "press" && words.size() == 3) // later: it may open a dialog that waits
                QMetaObject::invokeMethod(
                    &notifier, [this, words] { press(words[1].toInt(), words[2].toInt()); },
                    Qt::QueuedConnection);
        }
    }

    void look() {
        shown.clear();
        QJsonArray answer;
        add(QAccessible::queryAccessibleInterface(QCoreApplication::instance()), answer, 0);
        QByteArray line = QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
        while (!line.isEmpty()) {
            const auto written = write(socket, line.constData(), size_t(line.size()));
            if (written <= 0)
                return;
            line.remove(0, written);
        }
    }

    void add(QAccessibleInterface* thing, QJsonArray& answer, int depth) {
        if (!thing || !thing->isValid() || depth > deepest)
            return;
        const QAccessible::State state = thing->state();
        QAccessibleActionInterface* actions = thing->actionInterface();
        const bool isUsable = !state.invisible && !state.offscreen && !state.disabled;
        answer.append(QJsonArray{thing->text(QAccessible::Name),
                                 actions ? int(actions->actionNames().size()) : 0, isUsable});
        shown.append(QAccessible::uniqueId(thing));
        for (int i = 0; i < std::min(thing->childCount(), childrenRead); i++)
            add(thing->child(i), answer, depth + 1);
    }

    void press(int index, int action) {
        QAccessibleInterface* thing = QAccessible::accessibleInterface(shown.value(index));
        QAccessibleActionInterface* actions = thing && thing->isValid() ? thing->actionInterface() : nullptr;
        const QStringList names = actions ? actions->actionNames() : QStringList();
        if (action < names.size())
            actions->doAction(names[action]);
    }

    int socket;
    QSocketNotifier notifier;
    QByteArray received;
    QList<QAccessible::Id> shown;
};

void start() {
    qunsetenv("LD_PRELOAD"); // not for what the program starts
    if (qEnvironmentVariableIsSet("USE_FROM_INSIDE"))
        new UseFromInside(qEnvironmentVariableIntValue("USE_FROM_INSIDE"));
}
Q_COREAPP_STARTUP_FUNCTION(start)

} // namespace

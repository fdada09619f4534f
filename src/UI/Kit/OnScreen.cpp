#include "UI/Kit/OnScreen.h"

#include "Core/Observable.h"

#include <QEvent>
#include <QWidget>

namespace {

class Refresher : public QObject {
public:
    Refresher(QWidget* widget, std::function<void()> refresh)
        : QObject(widget)
        , m_widget(widget)
        , m_refresh(std::move(refresh)) {
        widget->installEventFilter(this);
    }

    void refresh() const {
        if (m_widget->isVisible() && !m_widget->window()->isMinimized())
            m_refresh();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show)
            refresh();
        return false;
    }

private:
    QWidget* m_widget;
    std::function<void()> m_refresh;
};

} // namespace

void refreshOnScreen(QWidget* widget, std::initializer_list<Observable*> sources,
                     std::function<void()> refresh) {
    auto* refresher = new Refresher(widget, std::move(refresh));
    for (Observable* source : sources)
        observe(source, refresher, [refresher] { refresher->refresh(); });
}

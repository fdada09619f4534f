#pragma once

#include "UI/Style/Theme.h"

#include <QList>
#include <QWidget>

/// One line of a small panel: a symbol, a text, and a figure at the trailing end.
class PanelRow : public QWidget {
    Q_OBJECT

public:
    struct Content {
        QString symbol;
        Theme::Role tint = Theme::Role::secondaryText;
        QString text;
        Theme::Role textRole = Theme::Role::primaryText;
        QString figure;

        bool operator==(const Content&) const = default;
    };

    /// `symbolWidth` is the column that the symbol is centred in.
    PanelRow(Theme::TextStyle style, int symbolWidth, QWidget* parent = nullptr);

    void set(const Content& content);

    /// Shows one row for each of `count` contents, as far as there are rows, and hides the others.
    template <typename MakeContent>
    static void setAll(const QList<PanelRow*>& rows, qsizetype count, MakeContent makeContent) {
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (i < count)
                rows[i]->set(makeContent(i));
            rows[i]->setVisible(i < count);
        }
    }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme::TextStyle m_style;
    int m_symbolWidth;
    Content m_content;
};

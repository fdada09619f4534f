#pragma once

#include <QHash>
#include <QString>
#include <QWidget>

class QGridLayout;
class TextLabel;

/// Lines of a name and a text, which can be selected and copied. A line without a text is hidden.
class FieldList : public QWidget {
    Q_OBJECT

public:
    explicit FieldList(QWidget* parent = nullptr);

    /// Adds a line at the end. Returns its number.
    int add(const QString& name);
    void set(int line, const QString& text);

private:
    struct Line {
        TextLabel* name;
        TextLabel* text;
    };

    QGridLayout* m_grid;
    QList<Line> m_lines;
};

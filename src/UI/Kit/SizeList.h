#pragma once

#include <QScrollArea>
#include <QString>

class QVBoxLayout;

/// A read-only list of names and figures under headings. It can be scrolled by keyboard.
class SizeList : public QScrollArea {
    Q_OBJECT

public:
    struct Row {
        QString name;
        QString figure = {};
        QString detail = {};  ///< small print below, two lines at most
        bool isGrave = false; ///< the detail is a warning
    };

    explicit SizeList(const QString& accessibleName, QWidget* parent = nullptr);

    void addRow(const Row& row);
    void addHeading(const QString& text);
    void addLine(const QString& text);
    /// Sets the width, and the height that the content needs at that width, up to `maxHeight`.
    void fit(int width, int maxHeight);

protected:
    bool event(QEvent* event) override;

private:
    QVBoxLayout* m_rows;
};

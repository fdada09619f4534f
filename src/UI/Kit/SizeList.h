#pragma once

#include <QScrollArea>
#include <QString>

class QVBoxLayout;

/// A list to read: names with figures at the far end, under headings. The keyboard reaches and scrolls it.
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
    /// As high as what it holds needs at that width, but no higher than `most`.
    void fit(int width, int most);

protected:
    bool event(QEvent* event) override;

private:
    QVBoxLayout* m_rows;
};

#pragma once

#include <QWidget>

class QVBoxLayout;

/// A part of a form: a title over a card of rows, with a line between rows.
class FormSection : public QWidget {
    Q_OBJECT

public:
    /// An empty title takes no room.
    explicit FormSection(const QString& title, QWidget* parent = nullptr);

    void addRow(QWidget* row);
    /// Adds a label and, at the far end, its control, with an illustration before the control.
    void addRow(const QString& label, QWidget* control, QWidget* illustration = nullptr);
    /// Adds small print below the last row.
    void addNote(QWidget* note);

private:
    QVBoxLayout* addCell();

    QVBoxLayout* m_rows;
    QVBoxLayout* m_last = nullptr;
};

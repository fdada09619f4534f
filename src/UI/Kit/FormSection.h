#pragma once

#include <QWidget>

class QVBoxLayout;

/// A part of a form: a title over a card of rows, with a line between one row and the next.
class FormSection : public QWidget {
    Q_OBJECT

public:
    /// An empty title takes no room.
    explicit FormSection(const QString& title, QWidget* parent = nullptr);

    void addRow(QWidget* row);
    /// A label and, at the far end, the control that it names, with whatever illustrates it before it.
    void addRow(const QString& label, QWidget* control, QWidget* illustration = nullptr);
    /// Small print below the row before it, with no line between them.
    void addNote(QWidget* note);

private:
    QVBoxLayout* addCell();

    QVBoxLayout* m_rows;
    QVBoxLayout* m_last = nullptr;
};

#pragma once

#include "UI/Kit/RowPool.h"

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QVBoxLayout;
class TextLabel;

/// A list of folders, or of patterns too, that the user adds to and removes from.
class TextListEditor : public QWidget {
    Q_OBJECT

public:
    /// With a `prompt`, any text can be typed; else only folders can be chosen.
    TextListEditor(const QString& name, const QString& emptyText, const QString& prompt,
                   QWidget* parent = nullptr);

    void set(const QStringList& texts);

Q_SIGNALS:
    void changed(const QStringList& texts);

private:
    class Row;

    QLayout* makeTools(const QString& prompt);
    void add(const QString& text);
    void addTyped();
    void chooseFolder();
    void remove(const QString& text);

    QStringList m_texts;
    QVBoxLayout* m_list;
    TextLabel* m_empty;
    QLineEdit* m_field = nullptr;
    RowPool<Row> m_rows;
};

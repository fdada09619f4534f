#pragma once

#include "UI/Sessions/SessionQuery.h"

#include <QWidget>

class PopUpButton;
class SearchField;
class SettingsFile;
class TextLabel;

/// The line above the sessions: their total, the search, and the order, which the settings file remembers.
class SessionControls : public QWidget {
    Q_OBJECT

public:
    explicit SessionControls(SettingsFile& file, QWidget* parent = nullptr);

    void setTotal(const QString& text);
    SessionQuery query() const;
    SessionSort sort() const;
    void focusSearch();
    void clearSearch();

Q_SIGNALS:
    void changed();

private:
    SettingsFile& m_file;
    TextLabel* m_total;
    SearchField* m_search;
    PopUpButton* m_sort;
};

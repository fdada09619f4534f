#pragma once

#include "UI/Style/Theme.h"

#include <QPushButton>

class Spinner;

/// A bordered or filled button with an optional symbol before its text.
class PushButton : public QPushButton {
    Q_OBJECT

public:
    enum class Look {
        normal,      ///< bordered
        prominent,   ///< filled with the tint
        destructive, ///< bordered, in red
        borderless
    };

    explicit PushButton(const QString& text, Look look = Look::normal, QString symbol = {},
                        QWidget* parent = nullptr);

    void setSymbol(const QString& symbol);
    /// Sets the colour of a prominent button's background, or of a borderless one's text. Default: accent.
    void setTint(Theme::Role tint);
    void setSmall();
    /// Shows a spinner in the symbol's place. The caller disables the button.
    void setBusy(bool busy);

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showLead();
    void placeSpinner();
    QColor textColor() const;

    Look m_look;
    QString m_symbol;
    Theme::Role m_tint = Theme::Role::accent;
    bool m_isBusy = false;
    Spinner* m_spinner;
};

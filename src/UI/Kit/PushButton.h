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
    /// Of a prominent button's ground, of any other one's text; the accent colour unless set.
    void setTint(Theme::Role tint);
    void setSmall();
    /// A spinner takes the symbol's place; whoever sets it also disables the button.
    void setBusy(bool busy);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What can be read on it: in its text an ampersand is written twice.
    QString caption() const { return text().replace(QStringLiteral("&&"), QStringLiteral("&")); }
    bool hasLead() const { return !m_symbol.isEmpty() || m_isBusy; }
    int contentWidth() const;
    void placeSpinner();
    QColor textColor() const;
    void drawGround(QPainter& painter) const;

    Look m_look;
    QString m_symbol;
    Theme::Role m_tint = Theme::Role::accent;
    bool m_isSmall = false;
    bool m_isBusy = false;
    Spinner* m_spinner;
};

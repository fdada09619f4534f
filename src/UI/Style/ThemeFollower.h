#pragma once

#include <QFont>
#include <QObject>

#include <memory>

class Appearance;

/// Applies the desktop's colours, font and motion, at the start and whenever they change.
class ThemeFollower : public QObject {
    Q_OBJECT

public:
    ThemeFollower(std::unique_ptr<Appearance> appearance, QObject* parent);
    ~ThemeFollower() override;

private:
    void follow();

    std::unique_ptr<Appearance> m_appearance;
    bool m_paletteIsDark; ///< counts when the desktop states no preference
    QFont m_ownFont;      ///< that of Qt, where the desktop names none
};

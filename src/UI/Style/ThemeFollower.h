#pragma once

#include <QObject>

#include <memory>

class Appearance;

/// Keeps the theme in step with the desktop's choice of light or dark, also while running.
class ThemeFollower : public QObject {
    Q_OBJECT

public:
    explicit ThemeFollower(std::unique_ptr<Appearance> appearance, QObject* parent);
    ~ThemeFollower() override;

private:
    void follow();

    std::unique_ptr<Appearance> m_appearance;
    bool m_paletteIsDark; ///< what the desktop's own palette says, where it states no preference
};

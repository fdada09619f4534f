#pragma once

#include <QObject>

#include <memory>

class Appearance;

/// Applies the desktop's choice of light or dark, at the start and whenever it changes.
class ThemeFollower : public QObject {
    Q_OBJECT

public:
    explicit ThemeFollower(std::unique_ptr<Appearance> appearance, QObject* parent);
    ~ThemeFollower() override;

private:
    void follow();

    std::unique_ptr<Appearance> m_appearance;
    bool m_paletteIsDark; ///< counts when the desktop states no preference
};

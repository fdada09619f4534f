#pragma once

#include <QString>
#include <QWidget>

#include <optional>

/// The memory of a process by kind, as one bar with its figures below. A kind that is not known is left out.
class MemoryKindsBar : public QWidget {
    Q_OBJECT

public:
    struct Kinds {
        std::optional<quint64> ownBytes;    ///< that no other process maps
        std::optional<quint64> sharedBytes; ///< that others map too
        std::optional<quint64> swapBytes;
        quint64 residentBytes = 0; ///< stands for the first two while they are not known

        bool operator==(const Kinds&) const = default;
    };

    explicit MemoryKindsBar(QWidget* parent = nullptr);

    void set(const Kinds& kinds);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Part;
    QList<Part> parts() const;

    Kinds m_kinds;
};

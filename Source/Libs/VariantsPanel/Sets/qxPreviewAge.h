#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class qxVariantSet;

/// Whether previews that were made since the scene was opened still fit their sets.
///
/// It remembers what a preview was made of: what the set refers to, what the variants make of it,
/// and what the host says of scene and light. It does not know what other sets have left in parts
/// of the scene that the set does not touch, nor what previews that came with a file show.
class qxPreviewAge : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// What pictures of sets show besides the sets: changes whenever light or scene do.
    typedef std::function<QByteArray()> Surroundings;
    /// Nothing before this call. Whoever gives it calls look() when it has changed.
    void setSurroundings(const Surroundings &surroundings) { m_surroundings = surroundings; }

    /// The set has just got its preview.
    void noteMade(const qxVariantSet &set);
    /// Whether the preview is known to have been made of something else. Cheap for a set that was
    /// asked about since the last look().
    bool isStale(const qxVariantSet &set) const;
    /// Sets, variants or surroundings may have changed.
    void look();
    /// There is another scene.
    void forget();

Q_SIGNALS:
    /// What isStale says may be different now.
    void changed();

private:
    QByteArray presentOf(const qxVariantSet &set) const;
    const QByteArray &surroundings() const;

    Surroundings m_surroundings;
    /// What pictures were made of, by themselves: of several sets that look the same, all.
    QHash<QByteArray, QSet<QByteArray>> m_made;
    mutable QHash<QString, bool> m_known; ///< answers since the last look, by sets
    mutable QByteArray m_present; ///< the surroundings since then; empty until they are needed
};

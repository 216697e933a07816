#pragma once

#include <QCoreApplication>
#include <QSize>

#include <optional>

class QWidget;

/// What pictures for a file are to be like.
struct qxPictureWish {
    Q_DECLARE_TR_FUNCTIONS(qxPictureWish)

public:
    QSize size; ///< in pixels
    bool isBest = true; ///< soft shadows and reflections, which take longer
    bool isTransparent = false; ///< there is nothing behind the scene

    /// Whether the user is asked for transparency, too.
    enum Choice { Opaque, MayBeTransparent };
    /// Lets the user choose, beginning with what was chosen the last time, else with `usual`. None
    /// if the user cancelled. `title` is that of the dialog, and choices are remembered by `key`.
    static std::optional<qxPictureWish> ask(const QString &title, const QString &key,
                                            const QSize &usual, Choice choice, QWidget *window);
    /// The quality of qxPictureSettings.
    int quality() const;
};

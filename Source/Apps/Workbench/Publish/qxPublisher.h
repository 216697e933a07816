#pragma once

#include "Publish/qxLossReport.h"
#include "Publish/qxPublishedPage.h"
#include "Publish/qxPublishedStates.h"
#include "Session/qxSetPreviews.h"

class qxSceneFile;

/// Makes a publication of the opened scene, as it stands. No script of a set may run meanwhile:
/// none does in browsers, so pictures must not show what scripts do.
class qxPublisher {
public:
    struct Wishes {
        qxPublishWishes states;
        QString title;
        bool compress = false; ///< meshes and pictures
    };

    /// Looks at the scene of the file from where the main view looks, which is where the page will
    /// look first. Why the scene cannot be written; empty if it can.
    QString describe(const qxSceneFile &file, const Wishes &wishes);

    /// The part of describe that finds what is published, without the scene itself.
    void addStates(const qxSceneFile &file, const Wishes &wishes);

    /// The sets that have no preview.
    const QStringList &withoutPreview() const { return m_withoutPreview; }
    /// Takes the preview of such a set.
    qxSetPreviews::Take takePreview();
    /// Makes the picture that is seen until the page has loaded the scene; false if it was
    /// cancelled.
    bool makePoster();

    const qxPublication &publication() const { return m_publication; }
    /// What is not carried.
    const qxLossReport &losses() const { return m_losses; }

private:
    QString addScene(const qxSceneFile &file, bool compress);
    void addHead();

    qxPublication m_publication;
    qxLossReport m_losses;
    QStringList m_withoutPreview;
};

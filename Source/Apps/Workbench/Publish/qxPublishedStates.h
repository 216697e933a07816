#pragma once

#include "qxStateRules.h"

#include <QJsonObject>
#include <QStringList>

#include <memory>

class qxLossReport;
class qxSceneFile;

/// What of the opened scene a page is to offer.
struct qxPublishWishes {
    QStringList groups; ///< names of those to show; without any all that the window shows
    bool hasVariants = true; ///< whether each variant can be chosen by itself
    QString language = QStringLiteral("en"); ///< of the words for states; "en" or "de"
};

/// Everything that sets and variants of the opened scene can do, as data that a page follows
/// without knowing what variants are; Source/Web/published.ts says how it reads them.
///
/// The module is asked for every state that the scene can come into. Scene, camera and clipping are
/// afterwards as they were, nothing is selected, and no script of a set runs.
class qxPublishedStates {
public:
    /// Looks at the scene of the file as it stands, and adds to the report what becomes of each
    /// entry of the sets. The scene must not change as long as this lives.
    qxPublishedStates(const qxSceneFile &file, const qxPublishWishes &wishes, qxLossReport &losses);
    qxPublishedStates(const qxPublishedStates &) = delete;
    ~qxPublishedStates();

    /// The members start, camera, groups, sets without previews, variants, viewpoints, clips,
    /// nodes, parts, wardrobes, overlays, environment, clippings and clipping.
    const QJsonObject &json() const;

    /// The slot of that aspect, which clones share; -1 when nothing changes it.
    int slotOf(const qxSceneObject &object, qxAspect aspect) const;
    /// All values that it can have, the first one as the scene stands; that one alone without a
    /// slot.
    std::vector<osg::Int64> valuesOf(const qxSceneObject &object, qxAspect aspect) const;

    /// Names of the sets that are shown, in the order of the member "sets".
    const QStringList &sets() const;

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

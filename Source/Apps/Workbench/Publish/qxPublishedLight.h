#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>

class qxPublishedStates;

/// How the scene of a published page is lit: as pictures of the present scene are, and as they are
/// with each environment that the page can choose.
struct qxPublishedLight {
    /// Pictures of all directions that are seen behind the scene get this width; others less. The
    /// scene is as before.
    qxPublishedLight(const qxPublishedStates &states, int widest);

    /// The members lightings, lighting, lightFactor, exposure, ground and box of
    /// Source/Web/published.ts, without the pictures of lightings.
    QJsonObject members;
    QList<QByteArray> pictures; ///< Radiance, one for each of the lightings
};

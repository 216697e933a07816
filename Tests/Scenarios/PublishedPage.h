#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGMatrix.h>

#include <QJsonObject>
#include <QMap>
#include <QStringList>
#include <QVector>

#include <optional>

/// Follows what is published of a scene as a page does: it knows the scene file and the published
/// numbers, and nothing of variants.
class PublishedPage {
public:
    /// `materials` are the names of materials by their places in the file.
    PublishedPage(const qxJson &file, const QJsonObject &published,
                  const QMap<int, QStringList> &materials);

    /// Takes a step of the set of that name, or of that option.
    void select(const QString &set);
    void select(const QString &kind, const QString &variant, const QString &option);
    /// Whether the set, or the option, is shown; none when the page cannot tell.
    std::optional<bool> isShown(const QString &set) const;
    std::optional<bool> isShown(const QString &kind, const QString &variant,
                                const QString &option) const;
    /// The clips that the last step started.
    const QStringList &clips() const { return m_clips; }

    /// What of a record of the scene is otherwise here; empty when all is the same.
    QString difference(const QJsonObject &record);

private:
    /// What holds for a node of the file.
    struct Node {
        int above = -1;
        osg::Matrix local;
        QJsonObject binding;
        bool isTop = false; ///< overlays and the environment do not heed the nodes above
        bool isKnown = false; ///< the members below are those of the present state
        bool isShown = true;
        osg::Matrix toWorld;
    };

    QJsonObject setOf(const QString &name) const;
    QJsonObject optionOf(const QString &kind, const QString &variant, const QString &option) const;
    void take(const QJsonObject &step);
    void start(int clip);
    bool holds(const QJsonValue &condition) const;
    std::optional<bool> isNow(const QJsonObject &holder) const;
    const Node &node(int index);
    int materialOf(QJsonValue choice) const;
    QString differenceOf(const QJsonObject &record);
    QString differenceOfPart(const QJsonObject &record, int index, int part);

    const qxJson m_file;
    const QJsonObject m_published;
    const QMap<int, QStringList> m_materials;
    QVector<double> m_slots;
    QVector<Node> m_nodes;
    QMap<QPair<int, int>, QJsonObject> m_parts;
    QJsonObject m_camera;
    QStringList m_clips;
};

#pragma once

#include <QSet>
#include <QString>

#include <memory>
#include <optional>

/// The lights and clips of the scene by name, which the host lists as a whole: each sort is
/// gathered when it is first asked for. It is a snapshot: whoever adds, removes or renames
/// something outdates it. One that is made while another lives shares what that gathers.
class qxSceneNames {
public:
    qxSceneNames();

    bool hasLight(const QString &name) const;
    bool hasClip(const QString &name) const;

private:
    struct Gathered {
        std::optional<QSet<QString>> lights;
        std::optional<QSet<QString>> clips;
    };
    static std::weak_ptr<Gathered> s_shared;

    std::shared_ptr<Gathered> m_gathered;
};

#pragma once

#include <OpenSG/OSGMatrix.h>

#include <string>
#include <unordered_map>
#include <vector>

/// The camera of a viewpoint. It looks along its negative z axis, y is up.
struct qxUberCamera {
    std::string name; ///< UTF-8, as shown to the user
    osg::Matrix toWorld; ///< from camera to world coordinates
    float fieldOfView = 0; ///< vertical, in radians; 0 for a parallel projection
    float height = 0; ///< height of the picture in world units, parallel projection only
    float nearPlane = 0.1f; ///< distance in world units
    float farPlane = 0; ///< distance in world units, 0 for infinity
};

/// The viewpoints of the scene. An id is the position in the pool.
class qxUberCameraPool {
public:
    /// The one of the process; never null.
    static qxUberCameraPool *the();

    /// The id of the first viewpoint of exactly that name, -1 when there is none.
    int findViewpoint(const std::string &name) const;
    /// The viewpoint with that id, or null. Valid until the pool changes.
    const qxUberCamera *get(int id) const;
    /// How many viewpoints there are; ids are below it.
    int count() const { return int(m_cameras.size()); }

    /// Appends a viewpoint and returns its id. Names need not be unique: the first one is found.
    int add(const qxUberCamera &camera);
    /// Gives the viewpoint with that id another name; an id that there is not is ignored.
    void rename(int id, const std::string &name);
    /// Forgets all viewpoints: the host's, when the scene is cleared.
    void clear();

private:
    std::vector<qxUberCamera> m_cameras;
    std::unordered_map<std::string, int> m_ids; ///< the first of each name
};

/// Operations on a single viewpoint.
class qxUberCameraUtils {
public:
    /// The viewpoint's name (UTF-8); empty for a null one.
    static std::string getName(const qxUberCamera *camera);
};

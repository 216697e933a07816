#pragma once

#include <memory>
#include <vector>

/// One operation of the module, from its begin to its end. Operations run within each other.
///
/// An operation notifies listeners and runs scripts, and those may do anything, also remove what it
/// works on. The whole module bears that in the same way:
///
/// - What leaves the registry, a variant, set or group, is buried: it stays in memory until the
///   outermost operation ends. So an operation may use what it got hold of to its end. Where it
///   matters whether an object is still registered, qxNamedList::contains says so.
/// - A list of the registry is gone over within a qxNamedList::Walk, any other list as a copy.
/// - An object of the scene is held by a ref pointer. A node without a parent has left the scene.
class qxDeferredDeletion {
public:
    qxDeferredDeletion() { ++s_depth; }
    ~qxDeferredDeletion();
    qxDeferredDeletion(const qxDeferredDeletion &) = delete;
    qxDeferredDeletion &operator=(const qxDeferredDeletion &) = delete;

    /// Deletes an object that left the registry; at once when no operation runs.
    template <class Object>
    static void bury(Object *object)
    {
        std::shared_ptr<void> grave(object);
        if (s_depth > 0)
            s_graves.push_back(std::move(grave));
    }

private:
    static int s_depth;
    static std::vector<std::shared_ptr<void>> s_graves; ///< empty while no operation runs
};

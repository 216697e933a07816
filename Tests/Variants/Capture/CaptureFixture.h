#pragma once

#include "qxVariants.h"

#include "HostFixture.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"

/// A test of capture and of what it needs: the registry is empty at its start and at its end.
class CaptureFixture : public HostFixture {
protected:
    CaptureFixture() { clearRegistry(); }
    ~CaptureFixture() override { clearRegistry(); }

    static void clearRegistry()
    {
        qxMessage message;
        qxVariants::clearAll(message);
    }

    template <class Nodes>
    static std::vector<std::string> namesOf(const Nodes &nodes)
    {
        std::vector<std::string> names;
        for (const auto &node : nodes)
            names.push_back(qxNodeUtils::getName(node));
        return names;
    }

    typedef std::vector<std::string> Names;
};

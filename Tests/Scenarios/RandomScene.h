#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <QByteArray>

#include <initializer_list>
#include <random>
#include <vector>

/// The same choices for the same seed, on every machine.
class RandomChoices {
public:
    explicit RandomChoices(unsigned seed) : m_engine(seed) {}

    /// A number below `count`.
    unsigned below(unsigned count) { return unsigned(m_engine()) % count; }
    bool percent(unsigned chance) { return below(100) < chance; }
    template <class T>
    T of(std::initializer_list<T> values)
    {
        return values.begin()[below(unsigned(values.size()))];
    }
    /// One of few names, so that many things share one; also names that look like generated ones.
    std::string name();
    /// Numbers as transforms have them, sometimes extreme ones.
    float number();
    float positive() { return of({0.25f, 1.0f, 3.0f}); }
    /// Translation, rotation and scale of one state.
    std::vector<float> pose();

private:
    std::mt19937 m_engine;
};

/// A small scene file with everything that scene files can express, and a variants document for it.
/// Its faults are no reason to refuse it. With `isExternal` its buffer is "data.bin".
qxJson randomScene(RandomChoices &random, bool isExternal);
/// The content of that buffer.
QByteArray randomSceneData();

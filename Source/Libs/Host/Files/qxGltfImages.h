#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <map>
#include <string>

struct qxGltfModel;

/// Decodes the pictures of a file, each once and only when asked for.
class qxGltfImages {
public:
    /// The model gets a warning for every picture that cannot be had.
    explicit qxGltfImages(qxGltfModel &model) : m_model(model) {}

    /// The picture of a texture, bottom row first; null when there is none or when it cannot be
    /// had.
    osg::ImagePtr ofTexture(int texture);

private:
    osg::ImagePtr decode(int image);

    qxGltfModel &m_model;
    std::map<int, osg::RefPtr<osg::ImagePtr>> m_images;
};

#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <map>
#include <string>

struct qxGltfModel;

/// The pictures of a file, each once and only when asked for. None is decoded: what is drawn first
/// does that (qxEncodedPicture).
class qxGltfImages {
public:
    /// The model gets a warning for every picture that cannot be had, and pays for the others.
    explicit qxGltfImages(qxGltfModel &model) : m_model(model) {}

    /// The picture of a texture; null when there is none or when it cannot be had. Images with the
    /// same data are one picture.
    osg::ImagePtr ofTexture(int texture);

private:
    osg::ImagePtr make(int image);

    qxGltfModel &m_model;
    std::map<std::string, osg::RefPtr<osg::ImagePtr>> m_images; ///< by where their data are
};

#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <QtGlobal>

#include <map>
#include <string>

struct qxGltfModel;

/// The pictures of a file, each read once on demand. They are decoded when they are first drawn
/// (qxEncodedPicture).
class qxGltfImages {
public:
    /// The model gets a warning for every picture that cannot be read, and its budget pays for the
    /// others.
    explicit qxGltfImages(qxGltfModel &model) : m_model(model) {}

    /// The picture of a texture; null if there is none or it cannot be read. A texture may have one
    /// in WebP, which is preferred, beside the other. Images with the same data are one picture,
    /// which is kept once for its colours and once for its numbers.
    osg::ImagePtr ofTexture(int texture, bool forColours);

private:
    struct Known {
        osg::RefPtr<osg::ImagePtr> image;
        qint64 size = 0; ///< decoded
        bool isPaid[2] = {false, false}; ///< for its numbers, for its colours
    };
    osg::ImagePtr ofImage(int image, bool forColours);
    void read(Known &known, int image);

    qxGltfModel &m_model;
    std::map<std::string, Known> m_images; ///< by where their data are
};

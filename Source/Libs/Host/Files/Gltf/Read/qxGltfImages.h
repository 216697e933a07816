#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <QByteArray>

#include <map>
#include <string>
#include <vector>

struct qxGltfModel;

/// The encoded picture of an image of the file. Throws qxGltfError.
QByteArray qxGltfPictureBytes(qxGltfModel &model, const qxJson &image);
/// Where its data are: the text of its URI or, with a mark that no URI begins with, the number of
/// its buffer view.
std::string qxGltfPictureKey(const qxJson &image);
/// The images that show a texture, the preferred one first. It may have one in WebP beside the
/// other.
std::vector<int> qxGltfTextureSources(const qxJson &texture);

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

#pragma once

#include "Render/qxPicture.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <QImage>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class qxMainGlView;

/// The 3D view of a window: a coarse picture while something moves, refined when nothing does.
///
/// The left button turns, the middle or the left one with Shift moves, the wheel or the right
/// button zooms; a click picks a node, a double click looks at it. Arrows turn, plus and minus
/// zoom, F shows everything, Home leads home.
class qxSceneView : public QWidget {
    Q_OBJECT

public:
    explicit qxSceneView(QWidget *parent = nullptr);
    ~qxSceneView() override;

    QSize sizeHint() const override { return QSize(800, 600); }
    /// Shows all of the scene, in the direction of the camera.
    void fitScene();
    void fitNode(const osg::NodePtr &node);
    void goHome();
    /// Call it for a new scene: forgets the point that the camera orbits.
    void showNewScene();

Q_SIGNALS:
    /// The user clicked on this node; null for the background.
    void nodePicked(const osg::NodePtr &node);
    /// What the view is doing, for a status line; empty when the picture is finished.
    void progressed(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void buildActions();
    void retranslate();
    void addAction(const char *text, Qt::Key key, const std::function<void()> &run);
    void turn(float right, float down);
    void zoom(float factor);
    void takeCamera();
    void takePicture();
    /// Shows why nothing of the scene is visible.
    void showHint();
    static QString adviceOn(qxPicture::Content content);
    void tellProgress(float share);
    /// Of the screen, which may be finer than those of the layout.
    QSize pixels() const;
    void fitPixels();
    void cameraMoved();
    void drag(const QPointF &step, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    osg::NodePtr nodeAt(const QPointF &place) const;

    std::unique_ptr<qxMainGlView> m_view;
    QImage m_picture; ///< what the view shows
    QString m_progress;
    QLabel *m_hint;
    osg::Pnt3f m_pivot;
    QPoint m_pressed;
    QPoint m_last;
    bool m_isDragged = false;
    QList<QPair<QAction *, const char *>> m_texts; ///< to be translated
};

#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QListWidget;
class QPushButton;
class qxRecentFiles;

/// What a window without a scene shows: the files that were open last, ways to open one, hints.
class qxStartPage : public QWidget {
    Q_OBJECT

public:
    /// The files must outlive this.
    explicit qxStartPage(qxRecentFiles *files, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants to choose a file.
    void openWanted();
    /// The user wants to see this file.
    void fileWanted(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildColumn();
    void buildList();
    void retranslate();
    void showFiles();
    void openCurrent();
    void removeCurrent();

    qxRecentFiles *m_files;
    QLabel *m_title;
    QLabel *m_about;
    QPushButton *m_open;
    QPushButton *m_demo;
    QLabel *m_heading;
    QListWidget *m_list;
    QAction *m_openFile;
    QAction *m_removeFile;
    QLabel *m_hints;
};

#pragma once

#include <QFrame>

#include <array>
#include <functional>

class QHBoxLayout;
class QToolButton;

namespace corvanta {

// The sunken panel with the open file's name, cut with an ellipsis where it is longer. The caption has its "&"
// doubled; the tag is the file's full path.
class FilePanel : public QFrame {
public:
    explicit FilePanel(QWidget *parent);

    void setFile(const QString &caption, const QString &tag);
    const QString &caption() const { return text; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString text;
};

// The toolbar strip tbarpic: toolbar buttons, file panel, object tools.
class Strip : public QFrame {
public:
    explicit Strip(QWidget *parent);

    void addObjectTools(); // one per item of the Add submenu
    void refreshCommands();
    FilePanel &filePanel() { return *panel; }

    std::function<void()> doubleClicked; // on the strip itself

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    std::array<QToolButton *, 5> buttons;
    FilePanel *panel;
    QHBoxLayout *row;
};

} // namespace corvanta

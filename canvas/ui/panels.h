#pragma once

#include <QFrame>

#include <functional>

class QLabel;

// The parts of the canvas window round the page, which stand for those of the client.
namespace corvanta {

// The strip at the top; its label stays in the middle of the window.
class MockToolbar : public QFrame {
public:
    explicit MockToolbar(QWidget *parent);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QLabel *label;
};

// The panel at the bottom: the status line, and at its right end the progress panel.
class StatusPanel : public QFrame {
public:
    explicit StatusPanel(QWidget *parent);

    void setStatus(const QString &text);

    std::function<void()> clicked;

    // The status line takes what the progress panel leaves of a page of this width.
    void arrange(int pageWidth);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *statusLine;
    QFrame *progressPanel;
};

} // namespace corvanta

#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>

namespace corvanta {

// A control of the window, by its name; a missing one is an error of the test.
template <class Control = QWidget> Control &find(const QWidget &window, const char *name)
{
    auto *control = window.findChild<Control *>(name);
    if (!control)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

inline void press(const QWidget &window, const char *button) { find<QAbstractButton>(window, button).click(); }

// Drives modal windows while the code under test waits in them. Steps are taken in order, each once: as soon as a
// modal window of the step's name is in front, the step gets it. A step may open a further window, which the
// next step then drives. Windows that nobody expects, and steps that find no window, fail the test.
class ModalDriver {
public:
    ModalDriver()
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { tick(); });
        sinceStep.start();
        timer.start(5);
    }

    ~ModalDriver() { EXPECT_TRUE(steps.empty()) << "no window " << (steps.empty() ? "" : steps.front().name); }

    ModalDriver(const ModalDriver &) = delete;
    ModalDriver &operator=(const ModalDriver &) = delete;

    // An empty name stands for any modal window.
    void expect(const std::string &name, std::function<void(QWidget &)> drive) { steps.push_back({name, drive}); }

private:
    struct Step {
        std::string name;
        std::function<void(QWidget &)> drive;
    };

    void tick()
    {
        QWidget *window = QApplication::activeModalWidget();
        // A window whose step still runs, behind one that it opened and that has just closed, waits for that step.
        if (!window || !window->isVisible() || driven.contains(window))
            return sinceStep.start();
        if (!steps.empty() && (steps.front().name.empty() || steps.front().name == nameOf(*window))) {
            // Not from within the timer's own event: the timer would stand still while a step has a window open.
            driven.insert(window);
            QTimer::singleShot(0, window, [this, step = std::move(steps.front()), window] { run(step, *window); });
            steps.pop_front();
            sinceStep.start();
        } else if (sinceStep.elapsed() > patience) {
            ADD_FAILURE() << "left open: " << nameOf(*window) << " " << window->windowTitle().toStdString();
            sinceStep.start();
            window->close();
        }
    }

    void run(const Step &step, QWidget &window)
    {
        try {
            step.drive(window);
        } catch (const std::exception &error) {
            ADD_FAILURE() << "in " << nameOf(window) << ": " << error.what();
            window.close();
        }
        driven.erase(&window);
    }

    static std::string nameOf(const QWidget &window) { return window.objectName().toStdString(); }

    static constexpr qint64 patience = 10000; // milliseconds without a step

    std::deque<Step> steps;
    std::set<QWidget *> driven;
    QElapsedTimer sinceStep;
    QTimer timer;
};

} // namespace corvanta

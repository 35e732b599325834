#pragma once

#include <memory>

namespace corvanta {

class EditorWindows;
class Odbcdbs;

// Fills the commands of the rooms below while it lives: object and page properties, the ODBC tool window, HTML export,
// the animation player.
class Rooms {
public:
    explicit Rooms(EditorWindows &windows);
    ~Rooms();
    Rooms(const Rooms &) = delete;
    Rooms &operator=(const Rooms &) = delete;

private:
    void showOdbc(bool shown);

    EditorWindows &editor;
    std::unique_ptr<Odbcdbs> odbcdbs; // made when it is first shown
};

} // namespace corvanta

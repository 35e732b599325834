#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

// What a lower room tells those who listen: any number of listeners, called in the order in which they came.
namespace corvanta {

// A listener's place in an event; its end takes the listener out. It may outlive the event.
class EventConnection {
public:
    EventConnection() = default;
    explicit EventConnection(std::shared_ptr<bool> switchedOn) : connected(std::move(switchedOn)) {}
    EventConnection(EventConnection &&) = default;
    EventConnection &operator=(EventConnection &&other) noexcept
    {
        disconnect();
        connected = std::move(other.connected);
        return *this;
    }
    ~EventConnection() { disconnect(); }

    void disconnect()
    {
        if (connected)
            *connected = false;
        connected.reset();
    }

private:
    std::shared_ptr<bool> connected;
};

template <class... Arguments> class Event {
public:
    using Listener = std::function<void(Arguments...)>;

    [[nodiscard]] EventConnection connect(Listener listener)
    {
        std::erase_if(listeners, [](const auto &l) { return !*l->connected; });
        listeners.push_back(std::make_shared<Listening>(always(), std::move(listener)));
        return EventConnection(listeners.back()->connected);
    }

    // A listener for as long as the event lives.
    void listen(Listener listener) { listeners.push_back(std::make_shared<Listening>(always(), std::move(listener))); }

    // Tells all who listen; one that comes meanwhile is not called, one that goes meanwhile neither.
    void operator()(Arguments... arguments) const
    {
        const auto now = listeners;
        for (const auto &l : now)
            if (*l->connected)
                l->listener(arguments...);
    }

private:
    struct Listening {
        Listening(std::shared_ptr<bool> on, Listener l) : connected(std::move(on)), listener(std::move(l)) {}
        std::shared_ptr<bool> connected;
        Listener listener;
    };

    static std::shared_ptr<bool> always() { return std::make_shared<bool>(true); }

    std::vector<std::shared_ptr<Listening>> listeners;
};

// The connections of one listener, ended together.
class EventConnections {
public:
    template <class... Arguments, class Listener> void add(Event<Arguments...> &event, Listener listener)
    {
        all.push_back(event.connect(std::move(listener)));
    }
    void clear() { all.clear(); }

private:
    std::vector<EventConnection> all;
};

} // namespace corvanta

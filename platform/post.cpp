#include "platform/post.h"

#include <deque>
#include <mutex>
#include <utility>

namespace corvanta {

namespace {

struct Post {
    std::mutex lock;
    std::deque<Job> waiting;
    std::function<void(Job)> loop;
};

Post &post()
{
    static Post *state = new Post; // abandoned threads may post while the program ends
    return *state;
}

} // namespace

void postToEventLoop(Job job)
{
    const std::lock_guard guard(post().lock);
    if (post().loop)
        post().loop(std::move(job));
    else
        post().waiting.push_back(std::move(job));
}

void setEventLoop(std::function<void(Job)> loop)
{
    const std::lock_guard guard(post().lock);
    post().loop = std::move(loop);
}

int runPostedJobs()
{
    std::deque<Job> jobs;
    {
        const std::lock_guard guard(post().lock);
        jobs.swap(post().waiting);
    }
    for (const Job &job : jobs)
        job();
    return static_cast<int>(jobs.size());
}

} // namespace corvanta

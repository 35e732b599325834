#pragma once

#include <functional>

// The way from any thread to the event loop.
namespace corvanta {

using Job = std::function<void()>;

// Carries a job out on the event loop's thread, in the order of the posts, never within this call. Any thread may post.
// Without an event loop (tools, tests) the jobs wait for runPostedJobs.
void postToEventLoop(Job job);

// The event loop that takes the jobs; set once at start-up, before any thread posts. Empty: none.
void setEventLoop(std::function<void(Job)> loop);

// Carries out, in the calling thread, what was posted while there was no event loop. The number of jobs.
int runPostedJobs();

} // namespace corvanta

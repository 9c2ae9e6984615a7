#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>

// Runs `work` on a thread of its own and waits at most `limit`, so that a call that never
// returns fails its test instead of stopping the whole run. A hung thread is left behind.
template <typename Result>
std::optional<Result> runWithin(std::chrono::milliseconds limit, std::function<Result()> work)
{
    auto promise = std::make_shared<std::promise<Result>>();
    std::future<Result> future = promise->get_future();
    std::thread([promise, work = std::move(work)] { promise->set_value(work()); }).detach();
    if (future.wait_for(limit) != std::future_status::ready)
        return std::nullopt;
    return future.get();
}

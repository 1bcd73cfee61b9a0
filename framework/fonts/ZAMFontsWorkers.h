// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

/// Workers that may serve one thread at a time: each call takes an idle one, or a new one, and gives it back.
template <class Worker> class ZAMFontsWorkers {
public:
    template <class Work> auto Use(Work work) {
        std::unique_ptr<Worker> worker = Take();
        auto result = work(*worker);
        const std::lock_guard lock(_Mutex);
        _Idle.push_back(std::move(worker));
        return result;
    }

private:
    std::unique_ptr<Worker> Take() {
        const std::lock_guard lock(_Mutex);
        if (_Idle.empty()) {
            return std::make_unique<Worker>();
        }
        std::unique_ptr<Worker> worker = std::move(_Idle.back());
        _Idle.pop_back();
        return worker;
    }

    std::mutex _Mutex;
    std::vector<std::unique_ptr<Worker>> _Idle;
};

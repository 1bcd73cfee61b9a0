// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

/// How a task has ended.
enum class TaskResult : unsigned char { Done, Failed, Crashed };

/// Does a task for each number below `count`, so many at once, each in one of a few processes: whatever a task does,
/// the others are done all the same. `task` is called in those processes and says whether it was successful; with one
/// process it is called in this one. `ended` is called here, once for each number, in the order in which they end.
/// Throws std::system_error when there can be no processes.
void RunTasks(std::size_t count, std::size_t processes, const std::function<bool(std::size_t number)>& task,
              const std::function<void(std::size_t number, TaskResult result)>& ended);

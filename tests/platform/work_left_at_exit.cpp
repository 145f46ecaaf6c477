// SPDX-License-Identifier: MIT
// Ends with work still queued for the main thread, work that queues more when it is dropped. Passes by
// ending.

#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>

#include <memory>

namespace {

struct QueuesMoreAtItsEnd {
    ~QueuesMoreAtItsEnd()
    {
        halvern::mainQueue().async([] {});
    }
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    halvern::mainQueue().async([last = std::make_shared<QueuesMoreAtItsEnd>()] {});
    halvern::mainQueue().after(1, [last = std::make_shared<QueuesMoreAtItsEnd>()] {});
    return 0;
}

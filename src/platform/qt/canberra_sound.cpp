#include "platform/qt/canberra_sound.h"

#include <QCoreApplication>
#include <QFile>
#include <canberra.h>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <dlfcn.h>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>

#include "platform/binary_file.h"

namespace ombrelia {

namespace {

using Instant = std::chrono::steady_clock::time_point;

// A sound that comes later than this after its click is not worth hearing; more than these few
// cannot be on their way.
constexpr auto kLatest = std::chrono::milliseconds(300);
constexpr std::size_t kMostWaiting = 4;

struct Request {
    std::string path;
    Instant asked;
};

// Takes the words of the sound system about a missing device, which nobody asked for.
void hearNothing(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                 const char* /*format*/, ...) {}

void silenceMessages() {
    using SetHandler = int (*)(void (*)(const char*, int, const char*, int, const char*, ...));
    void* library = dlopen("libasound.so.2", RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return;
    }
    const auto setHandler =
        reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler"));
    if (setHandler != nullptr) {
        setHandler(hearNothing);
    }
}

// The library, opened when the first sound is near: it is no part of the program's start.
class Player {
  public:
    Player() {
        silenceMessages();
        void* library = dlopen("libcanberra.so.0", RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            return;
        }
        const auto create =
            reinterpret_cast<decltype(&ca_context_create)>(dlsym(library, "ca_context_create"));
        const auto setProperties = reinterpret_cast<decltype(&ca_context_change_props)>(
            dlsym(library, "ca_context_change_props"));
        play_ = reinterpret_cast<decltype(&ca_context_play)>(dlsym(library, "ca_context_play"));
        if (create == nullptr || setProperties == nullptr || create(&context_) != CA_SUCCESS) {
            context_ = nullptr;
            return;
        }
        setProperties(context_, CA_PROP_APPLICATION_NAME, "Ombrelia Terrain Editor",
                      CA_PROP_CANBERRA_ENABLE, "1", nullptr);
        // The way to the sound server takes longer than a click may.
        if (const auto open =
                reinterpret_cast<decltype(&ca_context_open)>(dlsym(library, "ca_context_open"))) {
            open(context_);
        }
    }

    void play(const std::string& path) {
        if (context_ != nullptr && play_ != nullptr) {
            play_(context_, 0, CA_PROP_MEDIA_FILENAME, path.c_str(), CA_PROP_MEDIA_ROLE, "event",
                  CA_PROP_EVENT_DESCRIPTION, "Button", CA_PROP_CANBERRA_CACHE_CONTROL, "never",
                  nullptr);
        }
    }

  private:
    ca_context* context_ = nullptr;
    decltype(&ca_context_play) play_ = nullptr;
};

}  // namespace

struct CanberraSound::Queue {
    std::mutex mutex;
    std::condition_variable filled;
    std::deque<Request> waiting;

    Request take() {
        std::unique_lock lock(mutex);
        filled.wait(lock, [this] { return !waiting.empty(); });
        Request first = std::move(waiting.front());
        waiting.pop_front();
        return first;
    }
};

// The pointer is the one that the thread was begun with, a copy of its own.
void CanberraSound::playAll(const std::shared_ptr<Queue>& queue) {
    Player player;
    while (true) {
        const Request request = queue->take();
        if (std::chrono::steady_clock::now() - request.asked < kLatest) {
            player.play(request.path);
        }
    }
}

// An installed program has its data in a folder of their own.
std::string CanberraSound::programFile(const std::string& name) {
    const std::string folder =
        QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
    const std::string beside = folder + '/' + name;
    return isOrdinaryFile(beside) ? beside : folder + "/../share/ombrelia-terrain-editor/" + name;
}

void CanberraSound::prepare() {
    if (queue_ != nullptr) {
        return;
    }
    queue_ = std::make_shared<Queue>();
    try {
        std::thread(playAll, queue_).detach();
    } catch (const std::system_error&) {
        // No thread to be had: silence.
    }
}

void CanberraSound::play(const std::string& path) {
    prepare();
    {
        const std::lock_guard lock(queue_->mutex);
        if (queue_->waiting.size() >= kMostWaiting) {
            return;
        }
        queue_->waiting.push_back({path, std::chrono::steady_clock::now()});
    }
    queue_->filled.notify_one();
}

}  // namespace ombrelia

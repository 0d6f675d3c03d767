#include "platform/qt/surroundings.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace ombrelia {

namespace {

// Of a line of an address: "unix:path=/a,guid=b" has the value "/a" for "path".
std::string valueOf(const std::string& address, const std::string& key) {
    const std::size_t at = address.find(key + "=");
    return at == std::string::npos
               ? std::string()
               : address.substr(at + key.size() + 1,
                                address.find_first_of(",;", at) - at - key.size() - 1);
}

bool canWait(int socket, short event) {
    constexpr int kMilliseconds = 500;
    pollfd wish{socket, event, 0};
    return ::poll(&wish, 1, kMilliseconds) == 1;
}

// Begins as every client of a bus does: a zero byte and a line, which the bus answers with a line.
bool answers(int socket, const sockaddr_un& place, socklen_t length) {
    constexpr char kHello[] = "\0AUTH\r\n";
    constexpr std::size_t kHelloBytes = sizeof(kHello) - 1;
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&place), length) != 0) {
        return false;
    }
    return ::send(socket, kHello, kHelloBytes, MSG_NOSIGNAL) == static_cast<ssize_t>(kHelloBytes) &&
           canWait(socket, POLLIN);
}

void ignoreNonsense() {
    bool isNumber = false;
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isNumber);
    constexpr double kLeast = 0.25;
    constexpr double kMost = 8;
    if (!isNumber || !(factor >= kLeast && factor <= kMost)) {
        qunsetenv("QT_SCALE_FACTOR");
    }
}

QtMessageHandler usualHandler = nullptr;

// The toolkit knows no other end where no display can be used.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "Ombrelia Terrain Editor cannot use a display: %s\n",
                     qUtf8Printable(text.section('\n', 0, 0)));
        std::_Exit(1);
    }
    usualHandler(type, context, text);
}

}  // namespace

bool isBusAnswering(const std::string& address) {
    const std::string path = valueOf(address, "path");
    const std::string name = path.empty() ? valueOf(address, "abstract") : path;
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (name.empty() || name.size() + 1 >= sizeof(place.sun_path)) {
        return true;
    }
    // A name that is no file begins with a zero.
    const std::size_t begin = path.empty() ? 1 : 0;
    std::copy(name.begin(), name.end(), place.sun_path + begin);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (socket < 0) {
        return true;
    }
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + begin + name.size());
    const bool isAnswered = answers(socket, place, length);
    ::close(socket);
    return isAnswered;
}

void prepareSurroundings() {
    ignoreNonsense();
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (!bus.isEmpty() && !isBusAnswering(bus.toStdString())) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
    const QtMessageHandler before = qInstallMessageHandler(handleMessage);
    if (before != handleMessage) {
        usualHandler = before;
    }
}

}  // namespace ombrelia

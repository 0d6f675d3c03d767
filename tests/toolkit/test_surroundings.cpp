// The editor among things that are out of order.
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include "platform/qt/surroundings.h"

namespace ombrelia {

namespace {

// A place that takes calls and answers them, or does not.
class Listener {
  public:
    Listener(const std::string& path, bool answers) {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        path.copy(place.sun_path, sizeof(place.sun_path) - 1);
        socket_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(::bind(socket_, reinterpret_cast<sockaddr*>(&place), sizeof(place)), 0);
        EXPECT_EQ(::listen(socket_, 4), 0);
        if (answers) {
            person_ = std::thread([this] {
                const int call = ::accept(socket_, nullptr, nullptr);
                char hello[16];
                EXPECT_GT(::read(call, hello, sizeof(hello)), 0);
                EXPECT_EQ(::write(call, "REJECTED EXTERNAL\r\n", 19), 19);
                ::close(call);
            });
        }
    }
    ~Listener() {
        if (person_.joinable()) {
            person_.join();
        }
        ::close(socket_);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

  private:
    int socket_ = -1;
    std::thread person_;
};

TEST(Surroundings, a_bus_that_answers_is_told_from_a_mute_one) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    const Listener good(path + "/good", true);
    const Listener mute(path + "/mute", false);
    EXPECT_TRUE(isBusAnswering("unix:path=" + path + "/good,guid=12ab"));
    EXPECT_FALSE(isBusAnswering("unix:path=" + path + "/mute"));
    EXPECT_FALSE(isBusAnswering("unix:path=" + path + "/nobody"));
    EXPECT_TRUE(isBusAnswering("tcp:host=localhost,port=1"));
    EXPECT_TRUE(isBusAnswering(""));
}

// Starts the editor where nobody can see it; its exit status, -1 if it still runs after a while.
int statusOf(const QProcessEnvironment& environment, QString& words) {
    QProcess editor;
    editor.setProcessEnvironment(environment);
    editor.start(QStringLiteral(OMBRELIA_EDITOR), QStringList());
    const bool hasEnded = editor.waitForFinished(3000);
    words = QString::fromLocal8Bit(editor.readAllStandardError());
    const int status =
        hasEnded && editor.exitStatus() == QProcess::NormalExit ? editor.exitCode() : -1;
    editor.kill();
    editor.waitForFinished();
    return status;
}

TEST(Surroundings, no_usable_display_is_a_sentence_and_status_1) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    QString words;
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9871"));
    EXPECT_EQ(statusOf(environment, words), 1);
    EXPECT_TRUE(words.contains(QStringLiteral("Ombrelia Terrain Editor cannot use a display: ")))
        << words.toStdString();
    environment.remove(QStringLiteral("DISPLAY"));
    EXPECT_EQ(statusOf(environment, words), 1);
    EXPECT_TRUE(words.contains(QStringLiteral("needs a display"))) << words.toStdString();
}

TEST(Surroundings, nonsense_for_a_scale_is_ignored) {
    for (const char* factor : {"0", "-3", "nan", "many", "1e9"}) {
        qputenv("QT_SCALE_FACTOR", factor);
        prepareSurroundings();
        EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) << factor;
    }
    qputenv("QT_SCALE_FACTOR", "1.5");
    prepareSurroundings();
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "1.5");
    qunsetenv("QT_SCALE_FACTOR");
}

}  // namespace

}  // namespace ombrelia

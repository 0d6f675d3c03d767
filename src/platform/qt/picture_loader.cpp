#include "platform/qt/picture_loader.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <new>
#include <optional>
#include <utility>

#include "platform/bmp_header.h"
#include "platform/bmp_reader.h"
#include "platform/byte_source.h"
#include "platform/failure.h"
#include "platform/messages.h"
#include "platform/picture_sink.h"
#include "platform/qt/jpeg_reader.h"
#include "platform/qt/picture_process.h"
#include "platform/qt/png_reader.h"
#include "platform/qt/toolkit_picture.h"
#include "platform/surface.h"
#include "platform/tga_reader.h"

namespace ombrelia {

namespace {

constexpr int kFrameMilliseconds = 8;
constexpr int kUnfeltMilliseconds = 80;  // a shorter wait gets no sign

struct GivenUp {};

class BusyPointer {
  public:
    BusyPointer() { QGuiApplication::setOverrideCursor(Qt::BusyCursor); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

// The other process, which ends with this.
class ReadingProcess {
  public:
    ReadingProcess(const std::string& program, int seconds, const std::string& path,
                   PictureWish& wish)
        : path_(path), wish_(wish) {
        waited_.start();
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QString::fromStdString(program), {kReadPictureWord, QString::number(seconds),
                                                         QFile::decodeName(path.c_str())});
        if (!process_.waitForStarted()) {
            throw PictureFailure(path_, process_.errorString().toStdString());
        }
    }
    ~ReadingProcess() {
        process_.kill();
        process_.waitForFinished();
    }
    ReadingProcess(const ReadingProcess&) = delete;
    ReadingProcess& operator=(const ReadingProcess&) = delete;

    // The whole of the value. Throws GivenUp, and PictureFailure if the reader has died.
    template <typename Value>
    Value take() {
        Value value{};
        take(reinterpret_cast<char*>(&value), sizeof(value));
        return value;
    }

    void take(char* into, std::size_t count) {
        const auto bytes = static_cast<qint64>(count);
        for (qint64 taken = 0; taken < bytes;) {
            if (process_.bytesAvailable() == 0) {
                waitForMore();
            }
            taken += process_.read(into + taken, bytes - taken);
        }
    }

    void answer(const PictureGrid& grid) {
        process_.write(reinterpret_cast<const char*>(&grid), sizeof(grid));
        process_.waitForBytesWritten();
    }

  private:
    void waitForMore() {
        if (process_.waitForReadyRead(kFrameMilliseconds)) {
            return;
        }
        if (process_.state() == QProcess::NotRunning && process_.bytesAvailable() == 0) {
            throw PictureFailure(path_, reasonOfDeath());
        }
        if (waited_.elapsed() < kUnfeltMilliseconds) {
            return;
        }
        if (!busy_ && qGuiApp != nullptr) {
            busy_.emplace();
        }
        if (!wish_.goesOn()) {
            throw GivenUp();
        }
    }

    std::string reasonOfDeath() const {
        const bool isTimeUp =
            process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == kTimeIsUp;
        return isTimeUp ? messages::kTakesTooLong : messages::kReaderFailed;
    }

    std::string path_;
    PictureWish& wish_;
    QProcess process_;
    QElapsedTimer waited_;
    std::optional<BusyPointer> busy_;
};

void takePixels(ReadingProcess& reader, Surface& picture) {
    const int width = reader.take<int>();
    const int height = reader.take<int>();
    picture.setSize(width, height);
    for (int y = 0; y < height; ++y) {
        reader.take(reinterpret_cast<char*>(picture.row(y)),
                    static_cast<std::size_t>(width) * sizeof(Pixel));
    }
    picture.changed();
}

std::string takeSentence(ReadingProcess& reader) {
    std::string sentence(static_cast<std::size_t>(reader.take<int>()), '\0');
    reader.take(sentence.data(), sentence.size());
    return sentence;
}

void takePicture(ReadingProcess& reader, PictureWish& wish, Surface& picture) {
    while (true) {
        switch (reader.take<PictureWord>()) {
            case PictureWord::Size: {
                const int width = reader.take<int>();
                reader.answer(wish.gridFor(width, reader.take<int>()));
                break;
            }
            case PictureWord::Pixels:
                takePixels(reader, picture);
                return;
            case PictureWord::Failure:
                throw PictureFailure(takeSentence(reader));
        }
    }
}

}  // namespace

QtPictureLoader::QtPictureLoader(std::string program, int seconds)
    : program_(std::move(program)), seconds_(seconds) {}

bool QtPictureLoader::loadPicture(const std::string& path, PictureWish& wish, Surface& picture) {
    try {
        ReadingProcess reader(program_, seconds_, path, wish);
        takePicture(reader, wish, picture);
        return true;
    } catch (const GivenUp&) {
        return false;
    } catch (const std::bad_alloc&) {
        throw PictureFailure(path, messages::kNoMemory);
    }
}

void readPicture(ByteSource& source, PictureWish& wish, Surface& picture) {
    if (isBitmap(source)) {
        readBitmap(source, wish, picture);
    } else if (isTarga(source)) {
        readTarga(source, wish, picture);
    } else if (isPng(source)) {
        readPng(source, wish, picture);
    } else if (isJpeg(source)) {
        readJpeg(source, wish, picture);
    } else {
        readToolkitPicture(source, wish, picture);
    }
}

}  // namespace ombrelia

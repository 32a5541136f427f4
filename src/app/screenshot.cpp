#include "app/screenshot.h"

#include "widgets/message_box.h"

#include <QApplication>
#include <QFile>
#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

namespace quendra {

namespace {

std::optional<QSize> sizeOf(const std::string& text) {
    constexpr int largest = 10000;
    const QStringList parts = QString::fromStdString(text).split(QLatin1Char('x'));
    if (parts.size() != 2) return std::nullopt;
    const QSize size(parts[0].toInt(), parts[1].toInt());
    if (size.isEmpty() || size.width() > largest || size.height() > largest) return std::nullopt;
    return size;
}

bool isScale(const std::string& text) {
    constexpr double smallest = 0.5;
    constexpr double largest = 8;
    bool isNumber = false;
    const double value = QString::fromStdString(text).toDouble(&isNumber);
    return isNumber && value >= smallest && value <= largest;
}

bool takeValue(const std::string& option, const std::string& value, PictureOptions& options) {
    if (option == "--screenshot") {
        options.file = QFile::decodeName(value.c_str());
        return !value.empty();
    }
    if (option == "--size") {
        const auto size = sizeOf(value);
        options.size = size.value_or(QSize());
        return size.has_value();
    }
    options.scale = value;
    return isScale(value);
}

}  // namespace

std::optional<PictureOptions> takePictureOptions(std::vector<std::string>& arguments) {
    PictureOptions options;
    std::vector<std::string> others;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--") {
            // Names of files follow.
            others.insert(others.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i),
                          arguments.end());
            break;
        }
        if (argument == "--light") {
            options.appearance = Appearance::Light;
        } else if (argument == "--dark") {
            options.appearance = Appearance::Dark;
        } else if (argument == "--screenshot" || argument == "--size" || argument == "--scale") {
            if (i + 1 == arguments.size()) return std::nullopt;
            if (!takeValue(argument, arguments[++i], options)) return std::nullopt;
        } else {
            others.push_back(argument);
        }
    }
    arguments = std::move(others);
    return options;
}

void answerUnseenMessages() {
    replaceMessageHandler([](QWidget*, const Message& message) {
        std::fprintf(stderr, "quendra-script-editor: %s: %s\n", message.title.c_str(),
                     message.text.c_str());
        switch (message.buttons) {
            case MessageButtons::Ok: break;
            case MessageButtons::YesNo: return MessageAnswer::No;
            case MessageButtons::YesNoCancel: return MessageAnswer::Cancel;
        }
        return MessageAnswer::Ok;
    });
}

void showForPicture(QWidget& window, const PictureOptions& options, QSize usualSize) {
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(options.size.isEmpty() ? usualSize : options.size);
    window.show();
    QApplication::setActiveWindow(&window);
}

bool savePicture(QWidget& window, const PictureOptions& options) {
    // Layout, posted commands and the first painting have to be over.
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    QImageWriter picture(options.file);
    if (picture.write(window.grab().toImage())) return true;
    std::fprintf(stderr, "quendra-script-editor: %s: %s\n", qPrintable(options.file),
                 qPrintable(picture.errorString()));
    return false;
}

}  // namespace quendra

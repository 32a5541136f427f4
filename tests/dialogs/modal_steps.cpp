#include "dialogs/modal_steps.h"

#include "support/modal_looks.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quendra::test {

namespace {

constexpr int looksUntilGivingUp = 400;

}  // namespace

ModalSteps::ModalSteps() = default;

ModalSteps::~ModalSteps() {
    EXPECT_TRUE(steps_.empty()) << "never opened: " << steps_.front().dialog;
}

void ModalSteps::in(const char* dialog, std::function<void(const OpenDialog&)> step) {
    steps_.push_back({dialog, std::move(step)});
}

bool ModalSteps::run(const std::function<bool()>& operation) {
    idleLooks_ = 0;
    bool result = false;
    lookDuring([&] { result = operation(); }, [this] { look(); });
    return result;
}

void ModalSteps::look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const bool ready = dialog != nullptr && everyLoopHasItsDialog() && !steps_.empty() &&
                       (steps_.front().dialog == anyDialog ||
                        dialog->objectName().toStdString() == steps_.front().dialog);
    if (!ready) {
        if (++idleLooks_ > looksUntilGivingUp) giveUp();
        return;
    }
    idleLooks_ = 0;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    QApplication::setActiveWindow(dialog);
    try {
        step.act({dialog});
    } catch (const std::exception& fault) {
        ADD_FAILURE() << "in " << step.dialog << ": " << fault.what();
        giveUp();
    }
}

void ModalSteps::giveUp() {
    QWidget* open = QApplication::activeModalWidget();
    const std::string awaited = steps_.empty() ? "no more" : steps_.front().dialog;
    ADD_FAILURE() << "awaited " << awaited << ", but there is "
                  << (open == nullptr ? "none" : open->objectName().toStdString());
    steps_.clear();
    while (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        dialog->reject();
        if (dialog->isVisible()) break;
    }
}

}  // namespace quendra::test

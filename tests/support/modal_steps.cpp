#include "support/modal_steps.h"

#include "support/modal_looks.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quendra::test {

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
    constexpr int looksUntilGivingUp = 400;
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    const std::string awaited = steps_.empty() ? "no more" : steps_.front().dialog;
    const bool ready = dialog != nullptr && everyLoopHasItsDialog() && !steps_.empty() &&
                       (awaited == anyDialog || dialog->objectName().toStdString() == awaited);
    if (!ready) {
        if (++idleLooks_ > looksUntilGivingUp) giveUp("it never came");
        return;
    }
    idleLooks_ = 0;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    QApplication::setActiveWindow(dialog);
    try {
        step.act({dialog});
    } catch (const std::exception& fault) {
        steps_.push_front(step);
        giveUp(fault.what());
    }
}

// A dialog leaves its loop when it is hidden: also one that lies behind another, or that would not
// let itself be rejected.
void ModalSteps::giveUp(const std::string& fault) {
    const QWidget* open = QApplication::activeModalWidget();
    ADD_FAILURE() << "awaited " << (steps_.empty() ? "no more" : steps_.front().dialog)
                  << ", but there is "
                  << (open == nullptr ? "none" : open->objectName().toStdString()) << ": " << fault;
    steps_.clear();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isModal()) window->hide();
}

}  // namespace quendra::test

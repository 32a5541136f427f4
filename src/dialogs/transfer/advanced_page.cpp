#include "dialogs/transfer/advanced_page.h"

#include "text/text_ids.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quendra {

namespace {

using namespace transfer;
using enum ControlKind;
using enum HostSet;

constexpr const char* codePages[] = {"1256", "Unicode", "UTF-8"};

constexpr TransferControl table[] = {
    {.kind = Radio,
     .field = recordFormat,
     .caption = textid::recordFormatDefault,
     .value = 0,
     .hosts = VmCmsAndTso},
    {.kind = Radio,
     .field = recordFormat,
     .caption = textid::recordFormatVariable,
     .value = 1,
     .hosts = VmCmsAndTso},
    {.kind = Radio,
     .field = recordFormat,
     .caption = textid::recordFormatFixed,
     .value = 2,
     .hosts = VmCmsAndTso},
    {.kind = Radio,
     .field = recordFormat,
     .caption = textid::recordFormatUndefined,
     .value = 3,
     .hosts = Tso},
    {.kind = Number,
     .field = recordLength,
     .caption = textid::transferRecordLength,
     .hosts = VmCmsAndTso},
    {.kind = Number, .field = blockSize, .caption = textid::transferBlockSize, .hosts = Tso},
    {.kind = Radio,
     .field = spaceUnit,
     .caption = textid::spaceUnspecified,
     .value = 0,
     .hosts = Tso},
    {.kind = Radio,
     .field = spaceUnit,
     .caption = textid::spaceAverageBlocks,
     .value = 1,
     .hosts = Tso},
    {.kind = Number, .field = averageBlock, .hosts = Tso},
    {.kind = Radio,
     .field = spaceUnit,
     .caption = textid::spaceCylinders,
     .value = 2,
     .hosts = Tso},
    {.kind = Radio, .field = spaceUnit, .caption = textid::spaceTracks, .value = 3, .hosts = Tso},
    {.kind = Number, .field = primarySpace, .caption = textid::transferPrimarySpace, .hosts = Tso},
    {.kind = Number,
     .field = secondarySpace,
     .caption = textid::transferSecondarySpace,
     .hosts = Tso},
    {.kind = Password,
     .field = hostFilePassword,
     .caption = textid::transferHostFilePassword,
     .hosts = Tso},
    {.kind = Text, .field = transferProgramName, .caption = textid::transferProgramName},
    {.kind = CheckBox,
     .field = includeLeftParenthesis,
     .caption = textid::transferLeftParenthesis,
     .hosts = Cics},
    {.kind = CheckBox,
     .field = includeRightParenthesis,
     .caption = textid::transferRightParenthesis,
     .hosts = Cics},
    {.kind = Text, .field = additionalParameters, .caption = textid::transferAdditionalParameters},
    {.kind = CheckBox,
     .field = arabicProcessing,
     .literal = "Enable Arabic Processing",
     .loadedOnce = true},
    {.kind = List,
     .field = pcCodePageIndex,
     .literal = "PC Code Page:",
     .items = codePages,
     .loadedOnce = true},
};

constexpr std::uint8_t averageBlocks = 1;

}  // namespace

AdvancedPage::AdvancedPage(TransferSheetModel& model) : BoundPage(model) {
    setObjectName(QStringLiteral("advancedPage"));
    makeControls(table);
    auto* columns = new QHBoxLayout;
    columns->addWidget(recordFormatGroup(), 1);
    columns->addWidget(spaceGroup(), 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns);
    all->addWidget(optionsGroup());
    all->addWidget(bidiGroup());
    control(averageBlock)
        ->setAccessibleName(
            static_cast<QAbstractButton*>(control(spaceUnit, averageBlocks))->text().remove(u'&'));
}

QGroupBox* AdvancedPage::recordFormatGroup() {
    QGroupBox* box = addGroup("recordFormatGroup", text(textid::recordFormat), VmCmsAndTso);
    auto* grid = new QGridLayout(box);
    grid->setColumnStretch(2, 1);
    for (std::uint8_t format = 0; format < 4; ++format)
        grid->addWidget(control(recordFormat, format), format, 0, 1, 3);
    addLabelled(*grid, recordLength, 4);
    addLabelled(*grid, blockSize, 5);
    return box;
}

QGroupBox* AdvancedPage::spaceGroup() {
    QGroupBox* box = addGroup("spaceGroup", text(textid::transferSpace), Tso);
    auto* grid = new QGridLayout(box);
    grid->setColumnStretch(2, 1);
    for (std::uint8_t unit = 0; unit < 4; ++unit)
        grid->addWidget(control(spaceUnit, unit), unit, 0);
    grid->addWidget(control(averageBlock), averageBlocks, 1);
    addLabelled(*grid, primarySpace, 4);
    addLabelled(*grid, secondarySpace, 5);
    return box;
}

QGroupBox* AdvancedPage::optionsGroup() {
    QGroupBox* box = addGroup("optionsGroup", text(textid::transferAdvancedOptions));
    auto* grid = new QGridLayout(box);
    addLabelled(*grid, hostFilePassword, 0, 0, 2);
    addLabelled(*grid, transferProgramName, 1, 0, 2);
    grid->addWidget(control(includeLeftParenthesis), 2, 1);
    grid->addWidget(control(includeRightParenthesis), 2, 2);
    addLabelled(*grid, additionalParameters, 3, 0, 2);
    return box;
}

QGroupBox* AdvancedPage::bidiGroup() {
    QGroupBox* box = addGroup("bidiGroup", QStringLiteral("Bidi Options"));
    auto* grid = new QGridLayout(box);
    grid->addWidget(control(arabicProcessing), 0, 0);
    grid->setColumnStretch(1, 1);
    addLabelled(*grid, pcCodePageIndex, 0, 2);
    return box;
}

}  // namespace quendra

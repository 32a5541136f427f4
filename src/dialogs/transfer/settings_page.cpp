#include "dialogs/transfer/settings_page.h"

#include "widgets/file_dialogs.h"
#include "widgets/text_edit.h"
#include "widgets/ui_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quendra {

namespace {

using namespace transfer;
using enum ControlKind;

constexpr StringId sheetTitle = 11998;
constexpr StringId clearScreenText = 14934;
constexpr StringId eraseInputText = 10994;

constexpr const char* packetSizes[] = {"2K", "4K", "8K", "16K", "32K"};

constexpr TransferControl table[] = {
    {.kind = Text, .field = hostFileName, .caption = 10983},
    {.kind = Text, .field = member, .caption = 10984, .hosts = HostSet::Tso},
    {.kind = Text, .field = fileType, .caption = 10985, .hosts = HostSet::VmCms},
    {.kind = Text, .field = fileMode, .caption = 10986, .hosts = HostSet::VmCms},
    {.kind = Text, .field = pcFileName, .caption = 10988},
    {.kind = Radio, .field = binary, .caption = 10989, .value = 0},
    {.kind = Radio, .field = binary, .caption = 10811, .value = 1},
    {.kind = CheckBox, .field = crlf, .literal = "C&R/LF", .hosts = HostSet::VmCmsAndTso},
    {.kind = CheckBox, .field = append, .caption = 10991, .hosts = HostSet::VmCmsAndTso},
    {.kind = CheckBox,
     .field = useLocalTranslateTables,
     .caption = 10992,
     .when = EnableWhen::TextIsSelected},
    {.kind = List,
     .field = packetSizeIndex,
     .caption = 10993,
     .items = packetSizes,
     .when = EnableWhen::PacketSizeCanBeChosen},
    {.kind = CheckBox, .field = autoEraseInput, .caption = eraseInputText},
    {.kind = CheckBox, .field = showSettingsBeforeTransfer, .caption = 14592},
};

constexpr const char* hostNames[] = {"&VM/CMS", "&TSO", "CIC&S/VS"};

/// Columns of the groups that hold buttons only, so that they stand below each other.
constexpr int buttonColumns = 4;

void addButtons(QGroupBox* box, const std::vector<QWidget*>& buttons) {
    auto* grid = new QGridLayout(box);
    for (int column = 0; column < buttonColumns; ++column)
        grid->setColumnStretch(column, 1);
    int column = 0;
    for (QWidget* button : buttons)
        grid->addWidget(button, 0, column++);
}

}  // namespace

SettingsPage::SettingsPage(TransferSheetModel& model) : BoundPage(model) {
    setObjectName(QStringLiteral("settingsPage"));
    makeHosts();
    makeControls(table);
    auto* all = new QVBoxLayout(this);
    all->addWidget(hostSystemGroup());
    all->addWidget(hostFileGroup());
    all->addWidget(pcFileGroup());
    all->addWidget(fileOptionsGroup());
    all->addWidget(transferOptionsGroup());
    alignLabels({hostFileName, member, pcFileName});
}

// They change a value of the sheet, not of the settings, so no table row stands for them.
void SettingsPage::makeHosts() {
    auto* buttons = new QButtonGroup(this);
    buttons->setObjectName(QStringLiteral("transferHostButtons"));
    for (const std::uint8_t host : {transferHostVmCms, transferHostTso, transferHostCics}) {
        auto* radio = new QRadioButton(QLatin1String(hostNames[host]), this);
        radio->setObjectName(QStringLiteral("transferHost%1").arg(host));
        radio->setChecked(model().host == host);
        buttons->addButton(radio, host);
        connect(radio, &QRadioButton::toggled, this, [this, host](bool checked) {
            if (checked) chooseHost(host);
        });
        hosts_[host] = radio;
    }
}

void SettingsPage::focusHost() {
    hosts_[model().host < hosts_.size() ? model().host : 0]->setFocus();
}

void SettingsPage::chooseHost(std::uint8_t host) {
    model().host = host;
    load();
}

void SettingsPage::load() {
    BoundPage::load();
    const StringId caption = model().host == transferHostVmCms ? clearScreenText : eraseInputText;
    static_cast<QCheckBox*>(control(autoEraseInput))->setText(text(caption));
}

QGroupBox* SettingsPage::hostSystemGroup() {
    QGroupBox* box = addGroup("hostSystemGroup", text(10980));
    addButtons(box, {hosts_.begin(), hosts_.end()});
    return box;
}

QGroupBox* SettingsPage::hostFileGroup() {
    QGroupBox* box = addGroup("hostFileGroup", text(10982));
    auto* grid = new QGridLayout(box);
    addLabelled(*grid, hostFileName, 0, 0, 5);
    addLabelled(*grid, member, 1, 0);
    addLabelled(*grid, fileType, 1, 2);
    addLabelled(*grid, fileMode, 1, 4);
    return box;
}

QGroupBox* SettingsPage::pcFileGroup() {
    QGroupBox* box = addGroup("pcFileGroup", text(10987));
    auto* grid = new QGridLayout(box);
    addLabelled(*grid, pcFileName, 0);
    auto* browse = new QPushButton(text(10152), this);
    browse->setObjectName(QStringLiteral("browse"));
    connect(browse, &QPushButton::clicked, this, &SettingsPage::choosePcFile);
    setTabOrder(control(pcFileName), browse);
    grid->addWidget(browse, 0, 2);
    return box;
}

QGroupBox* SettingsPage::fileOptionsGroup() {
    QGroupBox* box = addGroup("fileOptionsGroup", text(10297));
    addButtons(box, {control(binary, 0), control(binary, 1), control(crlf), control(append)});
    return box;
}

QGroupBox* SettingsPage::transferOptionsGroup() {
    QGroupBox* box = addGroup("transferOptionsGroup", text(10857));
    auto* grid = new QGridLayout(box);
    grid->addWidget(control(useLocalTranslateTables), 0, 0);
    grid->setColumnStretch(1, 1);
    addLabelled(*grid, packetSizeIndex, 0, 2);
    grid->addWidget(control(autoEraseInput), 1, 0, 1, 4);
    grid->addWidget(control(showSettingsBeforeTransfer), 2, 0, 1, 4);
    return box;
}

void SettingsPage::choosePcFile() {
    auto* field = static_cast<TextEdit*>(control(pcFileName));
    FileDialogRequest request;
    request.title = text(sheetTitle).toStdString();
    request.filterDescription = "All Files(*.*)";
    request.initialFolder = model().state.settings.transferDir;
    request.initialFile = pathFromQt(field->text());
    const auto path = chooseFile(this, request);
    if (!path) return;
    field->setFocus();
    if (field->takeText(qtText(pathText(*path)))) field->selectAll();
}

}  // namespace quendra

#include "dialogs/transfer/settings_page.h"

#include "text/text_ids.h"
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

constexpr const char* packetSizes[] = {"2K", "4K", "8K", "16K", "32K"};

constexpr TransferControl table[] = {
    {.kind = Text, .field = hostFileName, .caption = textid::transferHostFileName},
    {.kind = Text, .field = member, .caption = textid::transferMember, .hosts = HostSet::Tso},
    {.kind = Text, .field = fileType, .caption = textid::transferFileType, .hosts = HostSet::VmCms},
    {.kind = Text, .field = fileMode, .caption = textid::transferFileMode, .hosts = HostSet::VmCms},
    {.kind = Text, .field = pcFileName, .caption = textid::transferPcFileName},
    {.kind = Radio, .field = binary, .caption = textid::transferText, .value = 0},
    {.kind = Radio, .field = binary, .caption = textid::transferBinary, .value = 1},
    {.kind = CheckBox, .field = crlf, .literal = "C&R/LF", .hosts = HostSet::VmCmsAndTso},
    {.kind = CheckBox,
     .field = append,
     .caption = textid::transferAppend,
     .hosts = HostSet::VmCmsAndTso},
    {.kind = CheckBox,
     .field = useLocalTranslateTables,
     .caption = textid::transferLocalTables,
     .when = EnableWhen::TextIsSelected},
    {.kind = List,
     .field = packetSizeIndex,
     .caption = textid::transferPacketSize,
     .items = packetSizes,
     .when = EnableWhen::PacketSizeCanBeChosen},
    {.kind = CheckBox, .field = autoEraseInput, .caption = textid::transferEraseInput},
    {.kind = CheckBox,
     .field = showSettingsBeforeTransfer,
     .caption = textid::transferShowSettings},
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
    const StringId caption = model().host == transferHostVmCms ? textid::transferClearScreen
                                                               : textid::transferEraseInput;
    static_cast<QCheckBox*>(control(autoEraseInput))->setText(text(caption));
}

QGroupBox* SettingsPage::hostSystemGroup() {
    QGroupBox* box = addGroup("hostSystemGroup", text(textid::transferHostSystem));
    addButtons(box, {hosts_.begin(), hosts_.end()});
    return box;
}

QGroupBox* SettingsPage::hostFileGroup() {
    QGroupBox* box = addGroup("hostFileGroup", text(textid::transferHostFile));
    auto* grid = new QGridLayout(box);
    addLabelled(*grid, hostFileName, 0, 0, 5);
    addLabelled(*grid, member, 1, 0);
    addLabelled(*grid, fileType, 1, 2);
    addLabelled(*grid, fileMode, 1, 4);
    return box;
}

QGroupBox* SettingsPage::pcFileGroup() {
    QGroupBox* box = addGroup("pcFileGroup", text(textid::transferPcFile));
    auto* grid = new QGridLayout(box);
    addLabelled(*grid, pcFileName, 0);
    auto* browse = new QPushButton(text(textid::browseButton), this);
    browse->setObjectName(QStringLiteral("browse"));
    connect(browse, &QPushButton::clicked, this, &SettingsPage::choosePcFile);
    setTabOrder(control(pcFileName), browse);
    grid->addWidget(browse, 0, 2);
    return box;
}

QGroupBox* SettingsPage::fileOptionsGroup() {
    QGroupBox* box = addGroup("fileOptionsGroup", text(textid::transferFileOptions));
    addButtons(box, {control(binary, 0), control(binary, 1), control(crlf), control(append)});
    return box;
}

QGroupBox* SettingsPage::transferOptionsGroup() {
    QGroupBox* box = addGroup("transferOptionsGroup", text(textid::transferOptions));
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
    request.title = text(textid::transferSettingsTitle).toStdString();
    request.filterDescription = "All Files(*.*)";
    request.initialFolder = model().state.settings.transferDir;
    request.initialFile = pathFromQt(field->text());
    const auto path = chooseFile(this, request);
    if (!path) return;
    field->setFocus();
    if (field->takeText(qtText(pathText(*path)))) field->selectAll();
}

}  // namespace quendra

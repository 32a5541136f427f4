// What both pages of the transfer sheet are made of: controls that a table lists, each bound to one
// field of the working settings.
#pragma once

#include "session/application_state.h"

#include <QWidget>

#include <span>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace quendra {

/// What the two pages share while their sheet is open: the working settings, which every change
/// goes into at once, and the sheet's own host system.
struct TransferSheetModel {
    ApplicationState& state;
    std::uint8_t host = transferHostVmCms;

    [[nodiscard]] FileTransferSettings& settings() const { return state.workingTransfer.settings; }
};

/// A set of host systems. Those above 2, which only a foreign file holds, are in `everyHost` alone.
enum class HostSet : std::uint8_t { None = 0, VmCms = 1, Tso = 2, VmCmsAndTso = 3, Cics = 4 };
inline constexpr HostSet everyHost{0xFF};
[[nodiscard]] bool contains(HostSet hosts, std::uint8_t host);

/// What a control needs beside its host systems to be enabled.
enum class EnableWhen : std::uint8_t { Always, TextIsSelected, PacketSizeCanBeChosen };

enum class ControlKind : std::uint8_t { Radio, CheckBox, Text, Password, Number, List };

/// One control. A text takes what its field can hold, a number seven digits.
struct TransferControl {
    ControlKind kind;
    const TransferField& field;
    /// Of the button itself, or of the label before a field; 0 and no literal for a field without.
    StringId caption = 0;
    /// The caption where the language library has none.
    const char* literal = nullptr;
    /// What a radio button stands for.
    std::uint8_t value = 0;
    std::span<const char* const> items = {};
    HostSet hosts = everyHost;
    EnableWhen when = EnableWhen::Always;
    /// Shows what the settings hold when the page is made, and does not look again.
    bool loadedOnce = false;
};

/// A page whose controls are named after their fields: "member" and its label "memberLabel", radio
/// buttons by their value too: "binary0".
class BoundPage : public QWidget {
    Q_OBJECT

  public:
    /// The model outlives the page.
    explicit BoundPage(TransferSheetModel& model) : model_(model) {}

    /// Shows the settings as they are, and what the host system enables. Stores nothing.
    virtual void load();

  Q_SIGNALS:
    /// What the user should know about what is being typed; empty when there is nothing any more.
    void noted(const QString& note);

  protected:
    void showEvent(QShowEvent* event) override;

    /// Makes the controls in the order of the table, which is the order of the Tab key; the page
    /// then lays them out. The table outlives the page.
    void makeControls(std::span<const TransferControl> table);

    [[nodiscard]] TransferSheetModel& model() { return model_; }
    [[nodiscard]] QString text(StringId id) const;
    [[nodiscard]] QWidget* control(const TransferField& field, std::uint8_t value = 0) const;
    [[nodiscard]] QLabel* label(const TransferField& field) const;
    /// A group box that is enabled on these host systems.
    QGroupBox* addGroup(const char* name, const QString& title, HostSet hosts = everyHost);
    /// Puts label and control of a field into a grid, the control `span` columns wide.
    void addLabelled(QGridLayout& grid, const TransferField& field, int row, int column = 0,
                     int span = 1) const;
    /// Gives these labels one width, so that the fields behind them stand in one line.
    void alignLabels(std::initializer_list<TransferField> fields) const;

  private:
    struct Bound {
        const TransferControl& row;
        QWidget* widget;
        QLabel* label;
    };
    struct Group {
        QGroupBox* box;
        HostSet hosts;
    };

    [[nodiscard]] Bound make(const TransferControl& row);
    QLabel* makeLabel(const TransferField& field, const QString& text, QWidget* buddy);
    [[nodiscard]] QWidget* makeButton(const TransferControl& row);
    [[nodiscard]] QWidget* makeTextEdit(const TransferControl& row);
    [[nodiscard]] QWidget* makeNumberEdit(const TransferControl& row);
    [[nodiscard]] QWidget* makeList(const TransferControl& row);
    [[nodiscard]] QButtonGroup& radioGroup(const TransferField& field);
    [[nodiscard]] const Bound& bound(const TransferField& field, std::uint8_t value) const;
    [[nodiscard]] QString caption(const TransferControl& row) const;
    [[nodiscard]] bool isOn(const TransferControl& row) const;
    void endNote(const QLineEdit& edit);
    void applyEnabled();
    void show(const Bound& control);
    void store(const TransferField& field, std::uint32_t value);

    TransferSheetModel& model_;
    std::vector<Bound> controls_;
    std::vector<Group> groups_;
    /// While load() fills the controls, what they report is no change by the user.
    bool loading_ = false;
    bool loadedBefore_ = false;
};

}  // namespace quendra

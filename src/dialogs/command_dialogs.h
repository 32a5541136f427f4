// The dialogs of the commands without actions, one factory each. Tests work on what these give
// without running it; everyone else goes through editParameters.
#pragma once

#include "dialogs/parameter_dialog.h"

#include <memory>

namespace quendra {

/// Comment, Goto, Label, Message, Express_Logon and Type; a Type offers to hide its text unless the
/// state says that an existing entry is being edited.
[[nodiscard]] std::unique_ptr<ParameterDialog> makeTextDialog(const DialogContext& context,
                                                              const EditTarget& target);
/// Wait and Wait_Ready.
[[nodiscard]] std::unique_ptr<ParameterDialog> makeWaitDialog(const DialogContext& context,
                                                              const EditTarget& target);
/// Run and the menu commands that take a file name.
[[nodiscard]] std::unique_ptr<ParameterDialog> makeFileOperationDialog(const DialogContext& context,
                                                                       const EditTarget& target);
[[nodiscard]] std::unique_ptr<ParameterDialog> makeSetCursorDialog(const DialogContext& context,
                                                                   const EditTarget& target);
[[nodiscard]] std::unique_ptr<ParameterDialog> makeCopyDialog(const DialogContext& context,
                                                              const EditTarget& target);
[[nodiscard]] std::unique_ptr<ParameterDialog> makePasteDialog(const DialogContext& context,
                                                               const EditTarget& target);
[[nodiscard]] std::unique_ptr<ParameterDialog> makeInputDialog(const DialogContext& context,
                                                               const EditTarget& target);
[[nodiscard]] std::unique_ptr<ParameterDialog> makeWaitUntilDialog(const DialogContext& context,
                                                                   const EditTarget& target);

/// The dialog of the target's command; none for a command without parameters, for a file transfer,
/// and for the three commands that carry actions.
[[nodiscard]] std::unique_ptr<ParameterDialog> makeCommandDialog(const DialogContext& context,
                                                                 const EditTarget& target);

}  // namespace quendra

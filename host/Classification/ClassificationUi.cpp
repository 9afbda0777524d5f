#include "Classification/ClassificationUi.h"

#include <utility>

namespace qev::classification::ui {

namespace {

std::shared_ptr<ClassificationDialogInterface>& dialogInUse()
{
    static std::shared_ptr<ClassificationDialogInterface> dialog;
    return dialog;
}

} // namespace

ClassificationDialogInterface::~ClassificationDialogInterface() = default;

void setClassificationDialog(std::shared_ptr<ClassificationDialogInterface> dialog)
{
    dialogInUse() = std::move(dialog);
}

std::vector<std::string> showClassificationUi(ClassificationInterface& system,
                                              fc::core::kernel::FcObject const* object,
                                              fc::core::kernel::FcTypeObject const* typeObject,
                                              std::string_view selectedCode)
{
    // The dialog may be exchanged while it is shown.
    auto const dialog = dialogInUse();
    return dialog ? dialog->show(system, object, typeObject, selectedCode) : std::vector<std::string>();
}

} // namespace qev::classification::ui

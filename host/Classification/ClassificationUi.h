#pragma once

#include "FoundationClasses/ForwardDeclarations.h"
#include "HostClassificationExport.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qev::classification {
class ClassificationInterface;
}

namespace qev::classification::ui {

/// A dialog in which the user picks codes of a system of classification.
class HOSTCLASSIFICATION_EXPORT ClassificationDialogInterface
{
public:
    ClassificationDialogInterface() = default;
    virtual ~ClassificationDialogInterface();
    ClassificationDialogInterface(ClassificationDialogInterface const&) = delete;
    ClassificationDialogInterface& operator=(ClassificationDialogInterface const&) = delete;

    /// As `showClassificationUi`.
    virtual std::vector<std::string> show(ClassificationInterface& system,
                                          fc::core::kernel::FcObject const* object,
                                          fc::core::kernel::FcTypeObject const* typeObject,
                                          std::string_view selectedCode) = 0;
};

/// Sets the dialog that the program shows; null takes it away again.
HOSTCLASSIFICATION_EXPORT void setClassificationDialog(std::shared_ptr<ClassificationDialogInterface> dialog);

/// Shows the program's dialog and waits until it is closed.
///
/// One of \p object and \p typeObject is what is to be classified; both may be null. \p selectedCode is the
/// present code, which the dialog begins with, and empty for a new classification. \returns the chosen codes.
/// Empty when the user cancelled, and when the program has no dialog.
HOSTCLASSIFICATION_EXPORT std::vector<std::string>
showClassificationUi(ClassificationInterface& system, fc::core::kernel::FcObject const* object,
                     fc::core::kernel::FcTypeObject const* typeObject, std::string_view selectedCode);

} // namespace qev::classification::ui

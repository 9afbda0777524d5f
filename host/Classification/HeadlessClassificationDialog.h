#pragma once

#include "Classification/ClassificationUi.h"
#include "HostClassificationExport.h"

#include <optional>
#include <string>
#include <vector>

namespace qev::classification::ui {

/// The dialog of a program without a screen: it answers with codes that it was given beforehand, and can be
/// asked what it was shown.
class HOSTCLASSIFICATION_EXPORT HeadlessClassificationDialog final : public ClassificationDialogInterface
{
public:
    /// What the dialog was shown for.
    struct Call
    {
        std::string system;
        bool isForObject = false;
        bool isForType = false;
        std::string selectedCode;

        friend bool operator==(Call const&, Call const&) = default;
    };

    HeadlessClassificationDialog();
    ~HeadlessClassificationDialog() override;

    /// The code that the next call picks; each answer serves once, and without one a call is cancelled.
    void answer(std::string code);
    [[nodiscard]] std::vector<Call> const& getCalls() const { return m_calls; }
    /// Codes that were to be picked and that the system does not have.
    [[nodiscard]] std::vector<std::string> const& getUnknownCodes() const { return m_unknownCodes; }

    std::vector<std::string> show(ClassificationInterface& system, fc::core::kernel::FcObject const* object,
                                  fc::core::kernel::FcTypeObject const* typeObject,
                                  std::string_view selectedCode) override;

private:
    std::vector<std::string> m_answers;
    std::vector<Call> m_calls;
    std::vector<std::string> m_unknownCodes;
};

} // namespace qev::classification::ui

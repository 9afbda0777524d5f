#pragma once

#include "Classification/ClassificationUi.h"

#include <QWidget>

namespace qev::application {

/// Asks the user for a code of a system of classification, over a window of the program.
class ClassificationQuestion final : public classification::ui::ClassificationDialogInterface
{
public:
    /// \p window outlives the question.
    explicit ClassificationQuestion(QWidget& window);
    ~ClassificationQuestion() override;

    std::vector<std::string> show(classification::ClassificationInterface& system,
                                  fc::core::kernel::FcObject const* object,
                                  fc::core::kernel::FcTypeObject const* typeObject,
                                  std::string_view selectedCode) override;

private:
    QWidget& m_window;
};

} // namespace qev::application

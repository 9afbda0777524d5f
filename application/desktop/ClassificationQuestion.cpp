#include "ClassificationQuestion.h"

#include "ClassificationDialog.h"
#include "DialogButtons.h"
#include "Texts.h"
#include "Ui/Qt/QtText.h"

namespace qev::application {

using ui::fromQString;
using ui::toQString;

ClassificationQuestion::ClassificationQuestion(QWidget& window)
    : m_window(window)
{
}

ClassificationQuestion::~ClassificationQuestion() = default;

std::vector<std::string> ClassificationQuestion::show(classification::ClassificationInterface& system,
                                                      fc::core::kernel::FcObject const* /*object*/,
                                                      fc::core::kernel::FcTypeObject const* /*typeObject*/,
                                                      std::string_view selectedCode)
{
    if (auto const* const known = dynamic_cast<classification::ClassificationSystem const*>(&system)) {
        ClassificationDialog dialog(*known, std::string(selectedCode), &m_window);
        return dialog.exec() == QDialog::Accepted ? dialog.getChosenPath() : std::vector<std::string>();
    }
    // A plug-in that does not tell its codes: the user has to know them.
    auto const code = askForText(m_window, getText("Classification_Title", {toQString(system.getKey())}),
                                 getText("Classification_Code"), toQString(selectedCode));
    return code.isEmpty() ? std::vector<std::string>() : std::vector{fromQString(code)};
}

} // namespace qev::application

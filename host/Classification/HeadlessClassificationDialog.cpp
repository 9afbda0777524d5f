#include "Classification/HeadlessClassificationDialog.h"

#include "Classification/ClassificationSystem.h"

#include <utility>

namespace qev::classification::ui {

HeadlessClassificationDialog::HeadlessClassificationDialog() = default;

HeadlessClassificationDialog::~HeadlessClassificationDialog() = default;

void HeadlessClassificationDialog::answer(std::string code) { m_answers.push_back(std::move(code)); }

std::vector<std::string> HeadlessClassificationDialog::show(ClassificationInterface& system,
                                                            fc::core::kernel::FcObject const* object,
                                                            fc::core::kernel::FcTypeObject const* typeObject,
                                                            std::string_view selectedCode)
{
    m_calls.push_back({system.getKey(), object != nullptr, typeObject != nullptr, std::string(selectedCode)});
    if (m_answers.empty())
        return {};
    auto const code = m_answers.front();
    m_answers.erase(m_answers.begin());
    auto const* const known = dynamic_cast<ClassificationSystem const*>(&system);
    if (!known)
        return {code};
    auto path = known->getPath(code);
    if (path.empty())
        m_unknownCodes.push_back(code);
    return path;
}

} // namespace qev::classification::ui

#pragma once

#include "FoundationClasses/FcBase.h"
#include "HostFoundationClassesExport.h"

#include <memory>

namespace qev::fc::tree {

/// The file as an entry of a tree of the model: no entity of the standard, but shown like one.
///
/// It has no rows of its own class; it shows `property`, and the owner histories of the model.
class HOSTFOUNDATIONCLASSES_EXPORT FcFileInfo : public FcBase
{
public:
    /// Does not own the model, which has to outlive it; null for none.
    explicit FcFileInfo(Data const* data = nullptr, std::shared_ptr<Property> property = nullptr);
    ~FcFileInfo() override;

    /// The model whose owner histories are shown; null for none.
    [[nodiscard]] Data const* getFileData() const { return m_fileData; }
    /// What is told of the file itself; null for nothing.
    [[nodiscard]] std::shared_ptr<Property> const& getProperty() const { return m_property; }

private:
    Data const* m_fileData;
    std::shared_ptr<Property> m_property;
};

} // namespace qev::fc::tree

#pragma once

#include "Format/Ifc/Step/StepMessage.h"

#include <cstdint>
#include <QListWidget>
#include <vector>

namespace qev::application {

/// What is wrong with the file, one line each. A double click shows the whole text, to be read and copied.
class MessagesPanel final : public QListWidget
{
public:
    explicit MessagesPanel(QWidget* parent = nullptr);
    ~MessagesPanel() override;

    /// Shows \p messages, and how many more there were.
    void setMessages(std::vector<step::StepMessage> const& messages, std::uint64_t dropped);
};

} // namespace qev::application

// Message boxes over the main window.
#pragma once

#include <QPointer>
#include <QWidget>

#include "app/messages.h"

namespace kelvo::ui {

class QtMessages final : public app::Messages {
 public:
  explicit QtMessages(QWidget* parent) : parent_(parent) {}

  void Inform(std::string_view text) override;
  void InformWithMore(std::string_view text, std::string_view more) override;
  bool InformWithChoice(std::string_view text, std::string_view choice) override;
  void Warn(std::string_view text) override;
  void Tell(std::string_view text) override;
  bool Ask(std::string_view text) override;
  app::UnsavedAnswer AskUnsaved(std::string_view text) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace kelvo::ui

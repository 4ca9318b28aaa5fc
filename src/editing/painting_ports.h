// What painting reaches beyond the picture.
#pragma once

#include "app/error_log.h"
#include "app/long_work.h"
#include "app/messages.h"
#include "app/settings_store.h"
#include "model/picture_views.h"

namespace kelvo::editing {

struct PaintingPorts {
  model::PictureViews& views;
  app::SettingsStore& settings;
  app::Messages& messages;
  app::StatusLine& status;
  app::ProcessEvents& events;
  app::WaitPointer& pointer;
  const app::ErrorLog& log;
};

}  // namespace kelvo::editing

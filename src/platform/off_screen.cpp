#include "platform/off_screen.h"

namespace platform {
namespace {

int living = 0;

}  // namespace

OffScreen::OffScreen() {
  ++living;
}

OffScreen::~OffScreen() {
  --living;
}

bool OffScreen::Active() {
  return living > 0;
}

}  // namespace platform

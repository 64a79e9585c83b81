// A surface that is a control: what is drawn on it shows at the next Refresh or repaint.
#pragma once

#include "platform/form.h"
#include "platform/surface.h"

namespace platform {

class PictureBox : public Control, public Surface {
 public:
  // 1 by 1 pixel until it is moved.  Giving it another size in twips resizes and clears the
  // surface.
  PictureBox(Control& parent, std::string name);
  ~PictureBox() override;
  // A thin black line over the outermost pixels of the surface.
  void SetBorder(bool border);
  bool Border() const;
  // Whether the keyboard reaches the box: Tab comes by, the blank and Enter click it.
  void SetTabStop(bool tabStop);

 protected:
  void ShowRect(const PixelRect& changed) override;
  void OnResized() override;

 private:
  bool border_ = false;
};

}  // namespace platform

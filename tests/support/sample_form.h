// A form with one control of every kind: for tests of forms, and to look at.
#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/picture_box.h"

namespace course::testing {

class SampleForm {
 public:
  explicit SampleForm(const std::string& name = "frmSample")
      : form(name, 620 * 15, 400 * 15),
        picPanel(form, "picPanel"),
        picInner(picPanel, "picInner"),
        lblTitle(form, "lblTitle", "A form with one control of every kind"),
        lstUnits(form, "lstUnits"),
        fraSpeed(form, "fraSpeed", "Animation"),
        optSlower(fraSpeed, "optSlower", "Slower"),
        optFaster(fraSpeed, "optFaster", "Faster"),
        cmdContinue(form, "cmdContinue"),
        cmdRefused(form, "cmdRefused"),
        cmdOK(form, "cmdOK", "&OK"),
        cmdCancel(form, "cmdCancel", "Cancel") {
    form.SetCaption("Sample");
    PlaceControls();
    BindControls();
    platform::Menu& file = form.AddMenu("&File");
    mnuSave = &file.AddItem("mnuSave", "&Save");
    file.AddSeparator("mnuSeparator");
    mnuExit = &file.AddItem("mnuExit", "E&xit");
    mnuSave->OnClick = [this] { done.push_back("mnuSave"); };
    mnuExit->OnClick = [this] { done.push_back("mnuExit"); };
  }

  platform::Form form;
  platform::PictureBox picPanel;
  platform::PictureBox picInner;
  platform::Label lblTitle;
  platform::ListBox lstUnits;
  platform::Frame fraSpeed;
  platform::OptionButton optSlower;
  platform::OptionButton optFaster;
  platform::Button cmdContinue;
  platform::Button cmdRefused;
  platform::Button cmdOK;
  platform::Button cmdCancel;
  platform::MenuItem* mnuSave = nullptr;
  platform::MenuItem* mnuExit = nullptr;
  // What the handlers were called for, in order.
  std::vector<std::string> done;

 private:
  static void Place(platform::Control& control, int left, int top, int width, int height) {
    control.Move(left * 15, top * 15, width * 15, height * 15);
  }

  void PlaceControls() {
    Place(lblTitle, 16, 12, 580, 24);
    lblTitle.SetFont("Arial", 14, true);
    Place(picPanel, 16, 48, 280, 180);
    picPanel.BackColor = platform::colour::Blue;
    picPanel.Cls();
    Place(picInner, 40, 60, 120, 60);
    picInner.SetBorder(true);
    Place(lstUnits, 312, 48, 292, 180);
    for (const char* unit : {" 1 - Integers", " 2 - Equations", " 3 - x\xB2 and roots"})
      lstUnits.AddItem(unit);
    Place(fraSpeed, 16, 244, 280, 96);
    Place(optSlower, 16, 28, 120, 24);
    Place(optFaster, 16, 58, 120, 24);
    Place(cmdContinue, 312, 252, 132, 44);
    cmdContinue.SetPicture("nav_continue");
    Place(cmdRefused, 460, 252, 132, 44);
    cmdRefused.SetPicture("nav_begin_example");
    cmdRefused.SetEnabled(false);
    Place(cmdOK, 352, 352, 120, 36);
    Place(cmdCancel, 484, 352, 120, 36);
    form.SetDefaultButton(cmdOK);
    form.SetNeutralButton(cmdCancel);
  }

  void BindControls() {
    for (platform::Control* control :
         {static_cast<platform::Control*>(&picPanel), static_cast<platform::Control*>(&picInner),
          static_cast<platform::Control*>(&lstUnits), static_cast<platform::Control*>(&optSlower),
          static_cast<platform::Control*>(&optFaster),
          static_cast<platform::Control*>(&cmdContinue),
          static_cast<platform::Control*>(&cmdRefused)})
      control->OnClick = [this, control] { done.push_back(control->Name()); };
    lstUnits.OnDblClick = [this] { done.push_back("double click on lstUnits"); };
    cmdOK.OnClick = [this] { CloseBy("cmdOK"); };
    cmdCancel.OnClick = [this] { CloseBy("cmdCancel"); };
  }

  void CloseBy(const std::string& name) {
    done.push_back(name);
    form.Close();
  }
};

}  // namespace course::testing

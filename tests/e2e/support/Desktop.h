#pragma once

// All that a scenario needs to play the user. In short:
//
//   TEST(Measuring, ALineIsDrawnWithTheMouse) {
//       const Backdrop backdrop({BackdropPattern::Points});
//       const AppDataFolder data;                 // the program's settings, fresh
//       const Program program(data);              // starts Ormala.exe
//       program.waitUntilReady();
//       Mouse mouse;
//       mouse.drag({400, 300}, {700, 500});
//       program.settings().named("lblA").waitForText("361");
//       EXPECT_EQ(program.close(), 0U);
//       EXPECT_TRUE(SettingsFile::read(data.toolsFile()).hasSection("Measure"));
//   }
//
// Everything is in screen pixels, and colours are 0x00BBGGRR. What does not come in time throws
// StageFailure, which ends the test as failed. A new test suite gets its line in CMakeLists.txt.

#include "e2e/support/AppDataFolder.h"
#include "e2e/support/Backdrop.h"
#include "e2e/support/DesktopWindow.h"
#include "e2e/support/Keyboard.h"
#include "e2e/support/MessageBoxWindow.h"
#include "e2e/support/Mouse.h"
#include "e2e/support/Program.h"
#include "e2e/support/SecondMonitor.h"
#include "e2e/support/SettingsFile.h"
#include "e2e/support/ShownMenus.h"
#include "e2e/support/StageFailure.h"
#include "support/win/ChildProcess.h"
#include "support/win/Picture.h"
#include "support/win/PngFile.h"
#include "support/win/Screen.h"
#include "support/win/ScreenGeometry.h"
#include "support/win/TemporaryFolder.h"
#include "support/win/Wait.h"
#include "support/win/WideText.h"

#pragma once

/// Loads the first of the user's languages that has a translation, with Qt's own translation and the
/// direction of the script. English needs none, so languages after English are not tried.
void loadTranslations();

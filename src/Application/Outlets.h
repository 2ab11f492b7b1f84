#pragma once

class AppDelegate;
class MainInterface;

/// Gives the interface's objects to the delegate, and connects the controls' actions.
void connectOutlets(MainInterface &interface, AppDelegate &delegate);

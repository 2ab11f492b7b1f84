#pragma once

class AppDelegate;
class MainInterface;

/// Gives the delegate the objects of the interface, and the controls their actions.
void connectOutlets(MainInterface &interface, AppDelegate &delegate);

#pragma once

class TTypeRegistrar;

/// The singletons of the terminal: its clock, selections, problems and receiver.
void RegisterTerminalTypes(const TTypeRegistrar& types);

#pragma once

class TTypeRegistrar;

/// The singletons of the terminal: its clock, drives, problems, receiver and selections, and what it is made of.
void RegisterTerminalTypes(const TTypeRegistrar& types);

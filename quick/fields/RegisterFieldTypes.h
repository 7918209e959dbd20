#pragma once

class TTypeRegistrar;

/// The tree of clients, farms, fields and jobs.
void RegisterFieldTypes(const TTypeRegistrar& types);

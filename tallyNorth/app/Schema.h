// The schema of a company database and its basic data, as kept in the sql/ resources.
#pragma once

#include "Result.h"

class Interaction;
class Progress;

// True when the current database already has the schema's tables.
bool SchemaExists();

// Creates the tables and indexes on the empty current database and inserts the basic data
// (version 302). Progress texts are shown on progress when given.
Result CreateSchema(Interaction* interaction, Progress* progress = nullptr);

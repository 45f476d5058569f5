// The cheque list as the main window's "Csekkek" tab, and the order list's "Csekk nyomtatasa".
#pragma once

class CommandHost;

void RegisterChequeList(CommandHost& host);

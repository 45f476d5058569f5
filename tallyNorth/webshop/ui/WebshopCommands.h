// The Webshop menu: download orders, partners and products, and import each from a file.
#pragma once

class CommandHost;

void RegisterWebshopCommands(CommandHost& host);

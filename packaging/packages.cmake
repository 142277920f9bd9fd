# packages

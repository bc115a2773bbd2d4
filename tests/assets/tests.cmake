boardwright_add_test(assets/tst_assets LINK boardwright_assets Qt5::Widgets)

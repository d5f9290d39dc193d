function(quvex_add_test)
endfunction()
